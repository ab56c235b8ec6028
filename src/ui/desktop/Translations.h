#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>

namespace lullet {

// The program's texts and Qt's own in the user's language, installed for as long as this lives.
// English is the language the texts are written in: it needs no file, and is what a language
// without a translation falls back to.
class Translations {
public:
    // Where the program's translations are built into it.
    static inline const QString builtIn = QStringLiteral(":/i18n");

    // Loads the translations; they apply to tr() once installed.
    explicit Translations(const QLocale& locale = QLocale(), const QString& folder = builtIn);
    ~Translations();

    // Makes them the application's, before any widget is built. Once, with the application made.
    void install();
    // One text in the user's language, also before the application exists (the command line's
    // help); the English source where there is no translation.
    QString text(const char* context, const char* source) const;

    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

private:
    QTranslator m_program;
    QTranslator m_qt;
    bool m_programLoaded = false;
    bool m_qtLoaded = false;
    bool m_programInstalled = false;
    bool m_qtInstalled = false;
};

} // namespace lullet
