#include "xmltext.h"

namespace {

constexpr int usualSize = 16384; // of the document of an ordinary invoice

void appendStart(QString &text, const char *name, const QString &attributes)
{
    text += QLatin1Char('<');
    text += QLatin1String(name);
    if (!attributes.isEmpty()) {
        text += QLatin1Char(' ');
        text += attributes;
    }
    text += QLatin1Char('>');
}

void appendEnd(QString &text, const char *name)
{
    text += QLatin1String("</");
    text += QLatin1String(name);
    text += QLatin1String(">\n");
}

} // namespace

XmlText::XmlText(const QString &first) : m_text(first) { m_text.reserve(usualSize); }

void XmlText::open(const char *name, const QString &attributes)
{
    m_open.append(name);
    m_pending.append({name, attributes});
}

void XmlText::flush()
{
    for (const Pending &element : qAsConst(m_pending)) {
        appendStart(m_text, element.name, element.attributes);
        m_text += QLatin1Char('\n');
    }
    m_pending.clear();
}

void XmlText::close()
{
    const char *name = m_open.takeLast();
    if (!m_pending.isEmpty()) {
        m_pending.removeLast(); // nothing was in it
        return;
    }
    appendEnd(m_text, name);
}

void XmlText::leaf(const char *name, const QString &content, const QString &attributes)
{
    if (content.isEmpty())
        return;
    flush();
    appendStart(m_text, name, attributes);
    m_text += content.toHtmlEscaped();
    appendEnd(m_text, name);
}
