#pragma once

#include <QUrl>

class QLabel;
class QWidget;

namespace lullet {

// The project's pages on the web, fixed when the program is built.
class Links {
public:
    static QUrl website();
    static QUrl faq();
    static QUrl privacy();
    // The terms sit on the privacy page, under their own heading.
    static QUrl terms();
    static QUrl contact();
    // A new message to the project, its subject naming the program.
    static QUrl email();

    // Opens the page in the user's browser, or says that it could not.
    static void open(const QUrl& url, QWidget* parent);
    // Rich text whose links open through open(), reachable with the keyboard.
    static QLabel* label(const QString& html, QWidget* parent);
    // An HTML link to `url` reading `text`.
    static QString anchor(const QUrl& url, const QString& text);
};

} // namespace lullet
