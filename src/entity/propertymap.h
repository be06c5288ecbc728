#ifndef PROPERTYMAP_H
#define PROPERTYMAP_H

#include <QMap>
#include <QString>
#include <QVariant>

/** The open-ended extra values of a customer, an invoice or the settings, kept in one text column. */
class PropertyMap {
public:
    QMap<QString, QVariant> properties;

    QVariant property(const QString &key, const QVariant &defaultValue = QVariant()) const;
    void setProperty(const QString &key, const QVariant &value);
    /** An empty value removes the key. */
    void setPropertyIfNotEmpty(const QString &key, const QString &value);
    void removeProperty(const QString &key);
    /** Removes every key that begins with the prefix (case-sensitive). */
    void removeProperties(const QString &prefix);

    QString propertiesToString() const;
    void propertiesFromString(const QString &text);
};

#endif
