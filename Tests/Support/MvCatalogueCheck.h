#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

// What is wrong with a translation catalogue (.ts): one line per message left unfinished, empty,
// kept though gone from the sources, or translated with other placeholders (%1, %n) or without
// the source's keyboard accelerator. Empty when every text is translated and usable.
namespace MvCatalogueCheck {

struct Message
{
    QString context;
    QString source;
    QString type; // the translation's type attribute: unfinished, vanished, obsolete, or empty
    QStringList forms; // one translation, or one per plural form
    bool numerus = false;
};

inline QSet<QString> placeholders(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("%(\\d+|n)"));
    QSet<QString> found;
    for (auto it = pattern.globalMatch(text); it.hasNext();)
        found.insert(it.next().captured(0));
    return found;
}

// Single '&' before a character marks the accelerator; "&&" is a literal ampersand.
inline int accelerators(const QString& text)
{
    int count = 0;
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (text.at(i + 1) != QLatin1Char('&') && !text.at(i + 1).isSpace())
            ++count;
        ++i;
    }
    return count;
}

inline QList<Message> parse(const QByteArray& xml, QString* language, QString* error)
{
    QList<Message> messages;
    QXmlStreamReader reader(xml);
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        const QStringRef name = reader.name();
        if (name == QLatin1String("TS")) {
            *language = reader.attributes().value(QLatin1String("language")).toString();
        } else if (name == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (name == QLatin1String("message")) {
            const bool numerus = reader.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
            messages.append({ context, QString(), QString(), {}, numerus });
        } else if (name == QLatin1String("source") && !messages.isEmpty()) {
            messages.last().source = reader.readElementText();
        } else if (name == QLatin1String("translation") && !messages.isEmpty()) {
            messages.last().type = reader.attributes().value(QLatin1String("type")).toString();
            if (!messages.last().numerus)
                messages.last().forms.append(reader.readElementText(QXmlStreamReader::SkipChildElements));
        } else if (name == QLatin1String("numerusform") && !messages.isEmpty()) {
            messages.last().forms.append(reader.readElementText());
        }
    }
    if (reader.hasError())
        *error = reader.errorString();
    return messages;
}

inline QStringList problems(const QByteArray& xml)
{
    QString language;
    QString error;
    const QList<Message> messages = parse(xml, &language, &error);
    if (!error.isEmpty())
        return { QStringLiteral("not a catalogue: %1").arg(error) };
    QStringList found;
    for (const Message& message : messages) {
        const QString where = QStringLiteral("%1 \"%2\"").arg(message.context, message.source);
        if (!message.type.isEmpty()) {
            found.append(QStringLiteral("%1: %2").arg(where, message.type));
            continue;
        }
        if (message.forms.isEmpty())
            found.append(QStringLiteral("%1: no translation").arg(where));
        for (const QString& form : message.forms) {
            if (form.trimmed().isEmpty())
                found.append(QStringLiteral("%1: empty translation").arg(where));
            else if (placeholders(form) != placeholders(message.source))
                found.append(QStringLiteral("%1: other placeholders in \"%2\"").arg(where, form));
            else if (accelerators(message.source) != accelerators(form))
                found.append(QStringLiteral("%1: accelerator lost or added in \"%2\"").arg(where, form));
        }
    }
    return found;
}

// The catalogue's language attribute ("de_DE") and message count, for a file on disk.
inline QString language(const QByteArray& xml, int* count)
{
    QString language;
    QString error;
    *count = int(parse(xml, &language, &error).size());
    return language;
}

} // namespace MvCatalogueCheck
