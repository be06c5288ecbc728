#ifndef PARSEDXML_H
#define PARSEDXML_H

#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

/** The elements of an XML document in their order, each with its path below the root: "EpiDetails/EpiPartyDetails". */
class ParsedXml {
public:
    struct Element {
        QString path;
        QString text; ///< its own, without that of its children
        QXmlStreamAttributes attributes;
        int parent; ///< index, -1 below the root
    };

    explicit ParsedXml(const QByteArray &document)
    {
        QXmlStreamReader reader(document);
        QVector<int> open;
        while (!reader.atEnd()) {
            switch (reader.readNext()) {
            case QXmlStreamReader::StartElement: {
                const int parent = open.isEmpty() ? -1 : open.last();
                const QString above = open.size() < 2 ? QString() : elements.at(parent).path + QLatin1Char('/');
                open.append(elements.size());
                elements.append({above + reader.qualifiedName(), QString(), reader.attributes(), parent});
                break;
            }
            case QXmlStreamReader::EndElement:
                open.removeLast();
                break;
            case QXmlStreamReader::Characters:
                elements[open.last()].text += reader.text();
                break;
            default:
                break;
            }
        }
        error = reader.hasError() ? reader.errorString() : QString();
    }

    QStringList texts(const QString &path) const
    {
        QStringList result;
        for (const Element &element : elements) {
            if (element.path == path)
                result.append(element.text);
        }
        return result;
    }
    QString text(const QString &path) const { return texts(path).value(0); }

    /** The values of an attribute of all elements of a path, null where it is missing. */
    QStringList attributes(const QString &path, const char *name) const
    {
        QStringList result;
        for (const Element &element : elements) {
            if (element.path == path)
                result.append(element.attributes.value(QLatin1String(name)).toString());
        }
        return result;
    }

    /** The names of the root's children, repetitions left out. */
    QStringList topLevel() const
    {
        QStringList result;
        for (const Element &element : elements) {
            if (element.parent == 0 && (result.isEmpty() || result.last() != element.path))
                result.append(element.path);
        }
        return result;
    }

    QVector<Element> elements; ///< the root first; its path is its name
    QString error;             ///< empty for a well-formed document
};

#endif
