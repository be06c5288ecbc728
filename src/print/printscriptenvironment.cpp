#include "printscriptenvironment.h"

#include "barcode128.h"
#include "constants.h"
#include "integer.h"
#include "printmodel.h"

#include <QPainter>
#include <QTextLayout>

#include <limits>

namespace {

constexpr double inchesPerMillimetre = 0.0393700787;
constexpr double millimetresPerInch = 25.4;
constexpr double farthest = 1e9; ///< pixels; so far that sums of two fit 32 bits
constexpr double unboundedHeight = std::numeric_limits<int>::max();

struct AlignmentName {
    const char *name;
    Qt::Alignment alignment;
};

const AlignmentName alignmentNames[] = {
    {"right", Qt::AlignRight},
    {"hcenter", Qt::AlignHCenter},
    {"vcenter", Qt::AlignVCenter},
    {"center", Qt::AlignCenter},
};

Qt::Alignment parseAlignment(const QString &name)
{
    for (const AlignmentName &row : alignmentNames) {
        if (name == QLatin1String(row.name))
            return row.alignment;
    }
    return Qt::AlignLeft;
}

struct WeightName {
    const char *start;
    QFont::Weight weight;
};

constexpr WeightName weightNames[] = {
    {"light", QFont::Light}, {"demiBold", QFont::DemiBold}, {"bold", QFont::Bold}, {"black", QFont::Black}};

QFont::Weight parseWeight(const QString &style)
{
    for (const WeightName &row : weightNames) {
        if (style.startsWith(QLatin1String(row.start), Qt::CaseInsensitive))
            return row.weight;
    }
    return QFont::Normal;
}

QColor parseColor(const QString &name)
{
    QColor color;
    color.setNamedColor(name);
    return color;
}

/** One line from the top of the box, without a lower end. */
QRectF lineBox(const QRect &box) { return QRectF(box.x(), box.y(), box.width(), unboundedHeight); }

} // namespace

PrintScriptEnvironment::PrintScriptEnvironment(PrintModel *model, QPrinter *printer, QPainter *painter, int fromPage,
                                               int toPage, QObject *parent)
    : QObject(parent), m_model(model), m_printer(printer), m_painter(painter), m_resolution(printer->resolution()),
      m_currencyFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_numberFormat(Constants::totalAmountFractionDigits), m_fromPage(fromPage), m_toPage(toPage),
      m_painting(fromPage < 2)
{
}

int PrintScriptEnvironment::toPixels(double millimetres) const
{
    const double pixels = millimetres * inchesPerMillimetre * m_resolution;
    return qRound(qBound(-farthest, pixels, farthest)); // what is no number at all, too, becomes one
}

QRect PrintScriptEnvironment::toPixels(double x, double y, double w, double h) const
{
    return QRect(toPixels(x), toPixels(y), toPixels(w), toPixels(h));
}

int PrintScriptEnvironment::toHundredths(double pixels) const
{
    return qRound(pixels / m_resolution * millimetresPerInch * 100);
}

QVariantList PrintScriptEnvironment::toHundredths(const QRect &rect) const
{
    return {toHundredths(rect.x()), toHundredths(rect.y()), toHundredths(rect.width()), toHundredths(rect.height())};
}

QVariant PrintScriptEnvironment::get(const QString &path) { return m_model->value(path); }

QString PrintScriptEnvironment::formatCurrency(qlonglong amount) { return m_currencyFormat.format(amount); }

QString PrintScriptEnvironment::formatNumber(qlonglong number, int scale, int minFractionDigits)
{
    m_numberFormat.setFractionDigits(scale);
    m_numberFormat.setMinFractionDigits(minFractionDigits);
    return m_numberFormat.format(number);
}

QString PrintScriptEnvironment::formatDate(const QDate &date, const QString &format) { return date.toString(format); }

QDate PrintScriptEnvironment::currentDate() { return m_model->today(); }

void PrintScriptEnvironment::newPage()
{
    ++m_page;
    const bool wasPainting = m_painting;
    m_painting = m_page >= m_fromPage && m_page <= m_toPage;
    if (m_painting && wasPainting)
        m_printer->newPage();
}

void PrintScriptEnvironment::drawLine(double x1, double y1, double x2, double y2)
{
    if (m_painting)
        m_painter->drawLine(toPixels(x1), toPixels(y1), toPixels(x2), toPixels(y2));
}

void PrintScriptEnvironment::drawRect(double x, double y, double w, double h)
{
    if (m_painting)
        m_painter->drawRect(toPixels(x, y, w, h));
}

void PrintScriptEnvironment::fillRect(double x, double y, double w, double h)
{
    if (m_painting)
        m_painter->fillRect(toPixels(x, y, w, h), Qt::black);
}

/** The text, or its longest start that is not wider than the width; never half a surrogate pair. */
QString PrintScriptEnvironment::clipped(const QString &text, int width) const
{
    const auto fits = [&](int length) {
        const QRectF bounds = m_painter->boundingRect(QRectF(0, 0, width, unboundedHeight),
                                                      Qt::TextSingleLine | Qt::TextDontClip, text.left(length));
        return bounds.toAlignedRect().width() <= width;
    };
    if (fits(text.size()))
        return text;
    int fitting = 0;
    int tooLong = text.size();
    while (tooLong - fitting > 1) {
        const int middle = fitting + (tooLong - fitting) / 2;
        (fits(middle) ? fitting : tooLong) = middle;
    }
    if (fitting > 0 && text.at(fitting - 1).isHighSurrogate())
        --fitting;
    return text.left(fitting);
}

void PrintScriptEnvironment::drawText(double x, double y, double w, double h, const QString &alignment,
                                      const QString &text)
{
    if (!m_painting)
        return;
    const QRect box = toPixels(x, y, w, h);
    if (h > 0) {
        layOut(box, parseAlignment(alignment), text,
               [this](const QTextLine &line, const QPointF &position) { line.draw(m_painter, position); });
        return;
    }
    const QString shown = m_textClipping ? clipped(text, box.width()) : text;
    m_painter->drawText(lineBox(box), int(parseAlignment(alignment)) | Qt::TextSingleLine | Qt::TextDontClip, shown);
}

/** Breaks a text into the lines of a box and hands each line on with the position of its box's left edge. */
void PrintScriptEnvironment::layOut(const QRect &box, Qt::Alignment alignment, const QString &text,
                                    const std::function<void(const QTextLine &, const QPointF &)> &place) const
{
    const int bottom = box.y() + box.height();
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    int y = box.y();
    for (int i = 0; i < paragraphs.size() && y <= bottom; ++i) {
        QTextLayout layout(paragraphs.at(i), m_painter->font(), m_painter->device());
        QTextOption option(alignment);
        option.setWrapMode(QTextOption::WordWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        while (y <= bottom) {
            QTextLine line = layout.createLine();
            if (!line.isValid())
                break;
            line.setLeadingIncluded(true);
            line.setLineWidth(box.width());
            place(line, QPointF(box.x(), y));
            y += m_lineHeight >= 0 ? toPixels(m_lineHeight) : qRound(line.height());
        }
        layout.endLayout();
    }
}

QVariantList PrintScriptEnvironment::boundingRect(double x, double y, double w, double h, const QString &alignment,
                                                  const QString &text)
{
    const QRect box = toPixels(x, y, w, h);
    if (h <= 0) {
        const int flags = int(parseAlignment(alignment)) | Qt::TextSingleLine;
        return toHundredths(m_painter->boundingRect(lineBox(box), flags, text).toAlignedRect());
    }
    QRectF bounds;
    layOut(box, parseAlignment(alignment), text, [&bounds](const QTextLine &line, const QPointF &position) {
        bounds |= line.naturalTextRect().translated(position);
    });
    return toHundredths(bounds.toRect());
}

void PrintScriptEnvironment::drawImage(double x, double y, double w, double h, const QString &path)
{
    if (!m_painting)
        return;
    const QImage image = m_model->image(path);
    const QRect box = toPixels(x, y, w, h);
    if (image.isNull() || box.isEmpty())
        return;
    // The page takes the image as it is and the device scales it: nothing is computed or stored at 1200 dpi.
    m_painter->drawImage(QRect(box.topLeft(), image.size().scaled(box.size(), Qt::KeepAspectRatio)), image);
}

void PrintScriptEnvironment::drawBarcode128C(double x, double y, double w, double h, const QString &digits)
{
    if (m_painting && Integer::isDigits(digits))
        Barcode128::renderC(m_painter, toPixels(x), toPixels(y), toPixels(w), toPixels(h), digits);
}

void PrintScriptEnvironment::rotate(double angle)
{
    if (qIsFinite(angle))
        m_painter->rotate(angle);
}

void PrintScriptEnvironment::setLocale(const QString &name)
{
    const QLocale locale(name);
    m_currencyFormat.setLocale(locale);
    m_numberFormat.setLocale(locale);
}

int PrintScriptEnvironment::orientation() const
{
    return m_printer->pageLayout().orientation() == QPageLayout::Landscape ? 2 : 1;
}

QVariantList PrintScriptEnvironment::pageRect() const
{
    return toHundredths(m_printer->pageLayout().paintRectPixels(m_resolution));
}

QVariantList PrintScriptEnvironment::paperRect() const
{
    return toHundredths(m_printer->pageLayout().fullRectPixels(m_resolution));
}

void PrintScriptEnvironment::setBrush(const QString &color) { m_painter->setBrush(QBrush(parseColor(color))); }

void PrintScriptEnvironment::setPen(const QString &color, double width)
{
    QPen pen(parseColor(color));
    if (width > 0)
        pen.setWidth(toPixels(width));
    m_painter->setPen(pen);
}

void PrintScriptEnvironment::setFont(const QString &family, int pointSize, const QString &style)
{
    const bool italic = style.endsWith(QLatin1String("italic"), Qt::CaseInsensitive);
    m_painter->setFont(QFont(family, pointSize, parseWeight(style), italic));
}
