#include "outputfile.h"

OutputFile::OutputFile(const QString &fileName)
    : m_place(fileName), m_file(m_place.temporaryName().isEmpty() ? fileName : m_place.temporaryName())
{
}

bool OutputFile::fail(const QString &message)
{
    m_errorString = message;
    return false;
}

bool OutputFile::open()
{
    if (!m_place.mayBeReplaced())
        return fail(m_place.errorString());
    const QIODevice::OpenMode isNew = m_place.temporaryName().isEmpty() ? QIODevice::NotOpen : QIODevice::NewOnly;
    return m_file.open(QIODevice::WriteOnly | isNew) || fail(m_file.errorString());
}

bool OutputFile::commit()
{
    m_file.flush();
    const bool isWritten = m_file.error() == QFileDevice::NoError;
    if (!isWritten)
        fail(m_file.errorString());
    m_file.close();
    if (!isWritten || m_place.temporaryName().isEmpty())
        return isWritten;
    return m_place.putInPlace() || fail(m_place.errorString());
}
