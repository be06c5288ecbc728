#include "xmltext.h"

namespace {

QString startTag(const char *name, const QString &attributes)
{
    return QLatin1Char('<') + QLatin1String(name) + (attributes.isEmpty() ? QString() : QLatin1Char(' ') + attributes) +
           QLatin1Char('>');
}

} // namespace

void XmlText::open(const char *name, const QString &attributes)
{
    m_open.append(QLatin1String(name));
    m_pending.append(startTag(name, attributes));
}

void XmlText::flush()
{
    for (const QString &tag : qAsConst(m_pending))
        m_text += tag + QLatin1Char('\n');
    m_pending.clear();
}

void XmlText::close()
{
    const QString name = m_open.takeLast();
    if (!m_pending.isEmpty()) {
        m_pending.removeLast(); // nothing was in it
        return;
    }
    m_text += QLatin1String("</") + name + QLatin1String(">\n");
}

void XmlText::leaf(const char *name, const QString &content, const QString &attributes)
{
    if (content.isEmpty())
        return;
    flush();
    m_text += startTag(name, attributes) + content.toHtmlEscaped() + QLatin1String("</") + QLatin1String(name) +
              QLatin1String(">\n");
}
