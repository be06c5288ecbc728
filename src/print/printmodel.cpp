#include "printmodel.h"

PrintModel::PrintModel(QObject *parent) : QObject(parent) {}

PrintModel::~PrintModel() = default;

bool PrintModel::run() { return true; }

QString PrintModel::lastError() const { return QString(); }

QVariant PrintModel::value(const QString &path)
{
    QStringList elements = path.split(QLatin1Char('/'));
    return value(elements);
}

QImage PrintModel::image(const QString &path)
{
    QStringList elements = path.split(QLatin1Char('/'));
    return image(elements);
}

QImage PrintModel::image(QStringList &) { return QImage(); }

QString PrintModel::csvFormatToDelimiter(int format) { return format == 0 ? QStringLiteral(",") : QStringLiteral(";"); }
