#ifndef PDFREADER_H
#define PDFREADER_H

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QVector>

/** Reads PDF files with poppler-utils, which must be installed: without them the texts are empty and a test fails. */
namespace PdfReader {

/** A word of a page (from 1), with its box in millimetres from the page's top left corner. */
struct Word {
    int page;
    QRectF box;
    QString text;

    /** About the place of the letters in the box, which has room for accents and descenders. */
    QRectF letters() const { return box.adjusted(0.1, box.height() * 0.3, -0.1, box.height() * -0.25); }
};

inline QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        qWarning("%s cannot be run: is poppler-utils installed?", qPrintable(program));
    return QString::fromUtf8(process.readAllStandardOutput());
}

/** The lines of each page as they stand on the paper, with single blanks between the words; empty lines left out. */
inline QVector<QStringList> pages(const QString &pdf)
{
    QVector<QStringList> result;
    const QStringList texts = run("pdftotext", {"-layout", pdf, "-"}).split(QChar::FormFeed, Qt::SkipEmptyParts);
    for (const QString &text : texts) {
        result.append(QStringList());
        const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines)
            result.last() << line.simplified();
    }
    return result;
}

inline QVector<Word> words(const QString &pdf)
{
    static const QRegularExpression line(
        QStringLiteral("<page|<word xMin=\"(.+)\" yMin=\"(.+)\" xMax=\"(.+)\" yMax=\"(.+)\">(.*)</word>"));
    constexpr double millimetres = 25.4 / 72;
    QVector<Word> result;
    int page = 0;
    auto matches = line.globalMatch(run("pdftotext", {"-bbox", pdf, "-"}));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const auto at = [&match](int group) { return match.captured(group).toDouble() * millimetres; };
        if (match.captured(5).isEmpty())
            ++page;
        else
            result << Word{page, QRectF(QPointF(at(1), at(2)), QPointF(at(3), at(4))), match.captured(5)};
    }
    return result;
}

/** The size of the first page, whole millimetres. */
inline QSize paperSize(const QString &pdf)
{
    static const QRegularExpression line(QStringLiteral("Page size: +([\\d.]+) x ([\\d.]+)"));
    const QRegularExpressionMatch match = line.match(run("pdfinfo", {pdf}));
    return QSizeF(match.captured(1).toDouble() * 25.4 / 72, match.captured(2).toDouble() * 25.4 / 72).toSize();
}

} // namespace PdfReader

#endif
