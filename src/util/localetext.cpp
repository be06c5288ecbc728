#include "localetext.h"

#include <QTextCodec>

#include <cstring>

QString LocaleText::decode(const char *bytes, int length)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader); // a mark at the start is a character of the text
    QString text = QTextCodec::codecForLocale()->toUnicode(bytes, length, &state);
    if (state.remainingChars > 0) // the text ends within a character
        text += QChar(QChar::ReplacementCharacter);
    return text;
}

QString LocaleText::fromUtf8(const char *bytes, int length)
{
    const QString text = QString::fromUtf8(bytes, length);
    const bool hasMark = length >= 3 && std::memcmp(bytes, "\xEF\xBB\xBF", 3) == 0;
    return hasMark ? QChar(QChar::ByteOrderMark) + text : text;
}
