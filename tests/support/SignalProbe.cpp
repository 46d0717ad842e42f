#include "SignalProbe.h"

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <array>

QList<QByteArray> SignalProbe::ownSignals(const QMetaObject &metaObject)
{
    QList<QByteArray> result;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            result.append(method.methodSignature());
        }
    }
    return result;
}

QVariantList SignalProbe::sampleArguments(const QMetaMethod &method,
                                          const QHash<QByteArray, QVariant> &overrides)
{
    QVariantList result;
    const QList<QByteArray> names = method.parameterNames();
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QMetaType type = method.parameterMetaType(i);
        const QString name = QString::fromLatin1(names.value(i));
        switch (type.id()) {
        case QMetaType::QString:
            result.append(QString(name + QStringLiteral("-sample")));
            break;
        case QMetaType::Bool:
            result.append(true);
            break;
        case QMetaType::QStringList:
            result.append(QStringList{QString(name + QStringLiteral("-1")),
                                      QString(name + QStringLiteral("-2"))});
            break;
        case QMetaType::QUrl:
            result.append(QUrl(QString(QStringLiteral("https://example.invalid/") + name)));
            break;
        default:
            result.append(overrides.value(type.name(), QVariant(type)));
            break;
        }
    }
    return result;
}

bool SignalProbe::emitSignal(QObject *object, const QByteArray &signature, QVariantList arguments)
{
    const QMetaObject *metaObject = object->metaObject();
    const int index = metaObject->indexOfSignal(signature.constData());
    if (index < 0 || arguments.size() > 3) {
        return false;
    }
    std::array<void *, 4> argv{};
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        argv[size_t(i) + 1] = arguments[i].data();
    }
    QMetaObject::metacall(object, QMetaObject::InvokeMetaMethod, index, argv.data());
    return true;
}

QByteArray SignalProbe::spyName(const QByteArray &signature)
{
    return QByteArray("2") + signature;
}
