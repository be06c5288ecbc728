#include "xmlguard.h"

XmlGuard::XmlGuard(QIODevice &source) : m_source(source) { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

qint64 XmlGuard::readData(char *data, qint64 maxSize)
{
    if (hasEnded())
        return 0;
    const qint64 size = m_source.read(data, maxSize);
    if (size <= 0)
        return size;
    const QByteArray bytes = QByteArray::fromRawData(data, static_cast<int>(size));
    const int first = bytes.indexOf('<');
    m_distance += first < 0 ? size : first;
    if (first >= 0 && !hasEnded())
        m_distance = size - bytes.lastIndexOf('<');
    return hasEnded() ? 0 : size;
}
