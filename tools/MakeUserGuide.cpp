// Turns the user's guide from Markdown into the PDF that ships with the program.
//
// Usage: make_user_guide GUIDE.md OUTPUT.pdf

#include <QFile>
#include <QGuiApplication>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdio>

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "Usage: make_user_guide GUIDE.md OUTPUT.pdf\n");
        return 2;
    }
    QFile source(QString::fromLocal8Bit(argv[1]));
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Cannot read %s\n", argv[1]);
        return 1;
    }
    QTextDocument guide;
    guide.setMarkdown(QString::fromUtf8(source.readAll()));
    QFont body = guide.defaultFont();
    body.setPointSizeF(11);
    guide.setDefaultFont(body);

    QPdfWriter pdf(QString::fromLocal8Bit(argv[2]));
    pdf.setTitle(QStringLiteral("Lullet User's Guide"));
    pdf.setCreator(QStringLiteral("Lullet"));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    guide.print(&pdf);
    return 0;
}
