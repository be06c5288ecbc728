#ifndef PROPERTYMAP_H
#define PROPERTYMAP_H

#include <QMap>
#include <QString>
#include <QVariant>

/** The open-ended extra values of a customer, an invoice or the settings, kept in one text column. */
class PropertyMap {
public:
    QMap<QString, QVariant> properties; ///< ascending by key, letter case counts; values are stored as texts

    /** The default is for a key that is not there. */
    QVariant property(const QString &key, const QVariant &defaultValue = QVariant()) const;
    void setProperty(const QString &key, const QVariant &value); ///< replaces; an empty value stays as such
    /** An empty value removes the key. */
    void setPropertyIfNotEmpty(const QString &key, const QString &value);
    void removeProperty(const QString &key);
    /** Removes every key that begins with the prefix (case-sensitive). */
    void removeProperties(const QString &prefix);

    /** The form of EntityUtil; reading replaces all properties. */
    QString propertiesToString() const;
    void propertiesFromString(const QString &text);
};

#endif
