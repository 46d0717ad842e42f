#pragma once

#include <QObject>
#include <QString>

class QTranslator;

// Turns language tags from any source into one canonical form, decides the text direction and
// installs the matching compiled translation from the resources.
class TranslationManager : public QObject
{
    Q_OBJECT

public:
    explicit TranslationManager(QObject *parent = nullptr);
    ~TranslationManager() override;

    static QString defaultLanguage();
    static QString normalize(const QString &tag);
    static Qt::LayoutDirection layoutDirection(const QString &tag);
    static QString systemLanguage();

    bool apply(const QString &tag);
    QString currentLanguage() const;

private:
    void removeTranslator();

    QTranslator *m_translator = nullptr;
    bool m_installed = false;
    QString m_current;
};
