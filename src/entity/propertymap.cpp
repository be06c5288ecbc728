#include "propertymap.h"

#include "entityutil.h"

QVariant PropertyMap::property(const QString &key, const QVariant &defaultValue) const
{
    return properties.value(key, defaultValue);
}

void PropertyMap::setProperty(const QString &key, const QVariant &value) { properties.insert(key, value); }

void PropertyMap::setPropertyIfNotEmpty(const QString &key, const QString &value)
{
    if (value.isEmpty())
        properties.remove(key);
    else
        properties.insert(key, value);
}

void PropertyMap::removeProperty(const QString &key) { properties.remove(key); }

void PropertyMap::removeProperties(const QString &prefix)
{
    auto it = properties.lowerBound(prefix);
    while (it != properties.end() && it.key().startsWith(prefix))
        it = properties.erase(it);
}

QString PropertyMap::propertiesToString() const { return EntityUtil::propertiesToString(properties); }

void PropertyMap::propertiesFromString(const QString &text) { EntityUtil::propertiesFromString(text, properties); }
