#include "ui/desktop/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace lullet {

namespace {

// The user's languages in order of preference (LANGUAGE, then LC_ALL, LC_MESSAGES, LANG), up to
// the first English one: a user who prefers English to German gets English, though a German
// translation exists.
QStringList wantedLanguages(const QLocale& locale)
{
    QStringList wanted;
    for (const QString& language : locale.uiLanguages()) {
        if (language.startsWith(QLatin1String("en")) || language == QLatin1String("C"))
            break;
        wanted << QString(language).replace(u'-', u'_');
    }
    return wanted;
}

// Loads the first translation that exists for one of the languages; QTranslator tries each
// language's shorter forms itself (lullet_de_AT, then lullet_de).
bool loadFirst(QTranslator& translator, const QStringList& languages, const QString& name,
               const QString& folder)
{
    for (const QString& language : languages)
        if (translator.load(name + u'_' + language, folder))
            return true;
    return false;
}

} // namespace

Translations::Translations(const QLocale& locale, const QString& folder)
{
    const QStringList languages = wantedLanguages(locale);
    if (languages.isEmpty())
        return;
    m_programLoaded = loadFirst(m_program, languages, QStringLiteral("lullet"), folder);
    // Qt's own dialogs (the print dialog, the file chooser) speak the same language.
    m_qtLoaded = loadFirst(m_qt, languages, QStringLiteral("qtbase"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

void Translations::install()
{
    m_programInstalled = m_programLoaded && QCoreApplication::installTranslator(&m_program);
    m_qtInstalled = m_qtLoaded && QCoreApplication::installTranslator(&m_qt);
}

QString Translations::text(const char* context, const char* source) const
{
    const QString translated = m_programLoaded ? m_program.translate(context, source) : QString();
    return translated.isEmpty() ? QString::fromUtf8(source) : translated;
}

Translations::~Translations()
{
    // Gone with the application, when that ended first (as at the end of main).
    if (!QCoreApplication::instance())
        return;
    if (m_programInstalled)
        QCoreApplication::removeTranslator(&m_program);
    if (m_qtInstalled)
        QCoreApplication::removeTranslator(&m_qt);
}

} // namespace lullet
