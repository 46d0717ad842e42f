#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMetaMethod>
#include <QVariant>

class QObject;

// Emits signals by name with recognisable arguments, for tests that check that a signal is
// passed on unchanged without naming each one in code.
class SignalProbe
{
public:
    // The normalised signatures of the signals a class declares itself, in declaration order.
    static QList<QByteArray> ownSignals(const QMetaObject &metaObject);

    // One distinct value per parameter: texts carry the parameter's name, booleans are true.
    // Types without a built-in sample take `overrides[typeName]` or their default value.
    static QVariantList sampleArguments(const QMetaMethod &method,
                                        const QHash<QByteArray, QVariant> &overrides = {});

    // Emits `signature` on `object` with `arguments`; false when the object has no such signal.
    static bool emitSignal(QObject *object, const QByteArray &signature, QVariantList arguments);

    // The SIGNAL() form of a signature, for QSignalSpy.
    static QByteArray spyName(const QByteArray &signature);
};
