#include "localetext.h"

#include <QTextCodec>

QString LocaleText::decode(const char *bytes, int length)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader); // a mark at the start is a character of the text
    QString text = QTextCodec::codecForLocale()->toUnicode(bytes, length, &state);
    if (state.remainingChars > 0) // the text ends within a character
        text += QChar(QChar::ReplacementCharacter);
    return text;
}
