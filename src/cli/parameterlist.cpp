#include "parameterlist.h"

ParameterList parseParameters(QStringList &args)
{
    ParameterList parameters;
    while (!args.isEmpty() && !args.first().startsWith(QLatin1Char('-'))) {
        const QString word = args.takeFirst();
        const int separator = word.indexOf(QLatin1Char('='));
        if (separator < 0)
            parameters.append({word, QStringLiteral("")});
        else
            parameters.append({word.left(separator), word.mid(separator + 1)});
    }
    return parameters;
}
