#ifndef PAPER_H
#define PAPER_H

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/** Reads printed PDF files with poppler-utils and zbar-tools, which must be installed. Measures are millimetres. */
namespace Paper {

constexpr double formTop = 202;
const QRectF form(QPointF(3.5, formTop), QPointF(203, 297));
const QRectF quietZone(QPointF(0, 275), QPointF(143.4, 297)); // the bars, 20 mm on both sides, what is below

/** A word of a page with its box in millimetres from the page's top left corner. */
struct Word {
    int page;
    QRectF box;
    QString text;

    /** About the place of the letters in the box, which has room for accents and descenders. */
    QRectF letters() const { return box.adjusted(0.1, box.height() * 0.3, -0.1, box.height() * -0.25); }
};

inline QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        qWarning("%s cannot be run: are poppler-utils and zbar-tools installed?", qPrintable(program));
    return process.readAllStandardOutput();
}

inline QString text(const QString &pdf)
{
    return QString::fromUtf8(run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")}));
}

inline int pageCount(const QString &pdf)
{
    const QRegularExpression line(QStringLiteral("Pages: +(\\d+)"));
    return line.match(QString::fromUtf8(run(QStringLiteral("pdfinfo"), {pdf}))).captured(1).toInt();
}

inline QVector<Word> words(const QString &pdf)
{
    static const QRegularExpression line(
        QStringLiteral("<page|<word xMin=\"(.+)\" yMin=\"(.+)\" xMax=\"(.+)\" yMax=\"(.+)\">(.*)</word>"));
    constexpr double millimetres = 25.4 / 72;
    QVector<Word> result;
    int page = 0;
    auto matches = line.globalMatch(
        QString::fromUtf8(run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")})));
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

/** What a barcode reader finds on the last page, scanned at 200 dpi. @param image  a file name to use, without suffix
 */
inline QByteArray barcode(const QString &pdf, const QString &image)
{
    const QString page = QString::number(pageCount(pdf));
    run("pdftoppm", {"-r", "200", "-gray", "-singlefile", "-f", page, pdf, image});
    return run("zbarimg", {"-q", "--raw", image + ".pgm"}).trimmed();
}

/**
 * A word that stands on another one, outside the margins or in the barcode's quiet zone, or that means a missing value.
 * @param hasForm  whether the last page ends with the transfer form
 * @return what is wrong, empty when nothing is
 */
inline QString misplaced(const QVector<Word> &words, bool hasForm)
{
    static const QRegularExpression missing(QStringLiteral("undefined|NaN|null|Invalid"));
    const int lastPage = words.isEmpty() ? 0 : words.last().page;
    for (int i = 0; i < words.size(); ++i) {
        const Word &word = words.at(i);
        const QString name = QStringLiteral("%1 on page %2 ").arg(word.text).arg(word.page);
        const bool aboveForm = hasForm && word.page == lastPage;
        const bool inForm = aboveForm && word.box.top() >= formTop;
        const QRectF page(QPointF(19.8, 9.5), QPointF(195.2, aboveForm ? 200 : 287.5));
        if (!(inForm ? form : page).contains(word.box))
            return name + "leaves the margins";
        if (inForm && quietZone.intersects(word.box))
            return name + "is in the barcode's quiet zone";
        if (missing.match(word.text).hasMatch())
            return name + "means a missing value";
        for (int j = i + 1; j < words.size() && words.at(j).page == word.page; ++j) {
            if (word.letters().intersects(words.at(j).letters()))
                return name + "stands on " + words.at(j).text;
        }
    }
    return words.size() > 5 ? QString() : QStringLiteral("an empty page");
}

} // namespace Paper

#endif
