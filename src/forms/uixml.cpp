// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uixml.h"

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace kor {

namespace {

//! The toolkit's reader lets names pass that no other one takes.
bool isName(QStringView name)
{
    const auto isPart = [](QChar character) {
        return character.isLetterOrNumber() || QStringView(u"_-.:").contains(character);
    };
    return !name.isEmpty() && !name.front().isDigit() && std::all_of(name.begin(), name.end(), isPart);
}

//! Builds the tree from the tokens of the file; elements in progress lie on a stack of their own.
class UiParser
{
public:
    explicit UiParser(QByteArrayView text) : m_reader(QByteArray::fromRawData(text.data(), text.size()))
    {
        m_reader.setNamespaceProcessing(false); // names are kept as they are written
    }

    UiXmlResult parse()
    {
        while (!m_reader.atEnd()) {
            if (const QString reason = take(m_reader.readNext()); !reason.isEmpty())
                return failed(reason);
        }
        if (m_reader.hasError())
            return failed(m_reader.errorString());
        return {std::move(m_root), {}, m_comments};
    }

private:
    [[nodiscard]] int line() const { return static_cast<int>(m_reader.lineNumber()); }
    [[nodiscard]] UiXmlResult failed(const QString &reason) const { return {std::nullopt, {line(), reason}, {}}; }

    QString take(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement: return begin();
        case QXmlStreamReader::EndElement: return end();
        case QXmlStreamReader::Characters:
            if (!isXmlText(m_reader.text()))
                return QStringLiteral("a character is none of XML");
            if (!m_open.empty())
                m_open.back().text += m_reader.text();
            return {};
        case QXmlStreamReader::Comment: m_comments << line(); return {};
        case QXmlStreamReader::EntityReference: return QStringLiteral("the entity is not known");
        default: return {};
        }
    }

    QString begin()
    {
        if (m_open.size() == maximumUiDepth)
            return QStringLiteral("elements lie more than %1 deep").arg(maximumUiDepth);
        UiElement element{m_reader.qualifiedName().toString(), {}, {}, {}, line()};
        if (!isName(element.name))
            return QStringLiteral("an element has a name that is none");
        for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
            if (!isName(attribute.qualifiedName()) || !isXmlText(attribute.value()))
                return QStringLiteral("an attribute of <%1> is none").arg(element.name);
            element.attributes.emplaceBack(attribute.qualifiedName().toString(), attribute.value().toString());
        }
        m_open.push_back(std::move(element));
        return {};
    }

    QString end()
    {
        UiElement element = std::move(m_open.back());
        m_open.pop_back();
        if (!element.children.empty()) {
            if (!element.text.trimmed().isEmpty())
                return QStringLiteral("<%1> holds a text beside its elements").arg(element.name);
            element.text.clear();
        }
        if (m_open.empty())
            m_root = std::move(element);
        else
            m_open.back().children.push_back(std::move(element));
        return {};
    }

    QXmlStreamReader m_reader;
    std::vector<UiElement> m_open;
    std::optional<UiElement> m_root;
    QList<int> m_comments;
};

// A carriage return that stands as it is would be read as a line feed.
void writeText(QXmlStreamWriter &writer, const QString &text)
{
    qsizetype start = 0;
    for (qsizetype at = text.indexOf(u'\r'); at >= 0; at = text.indexOf(u'\r', start)) {
        writer.writeCharacters(text.sliced(start, at - start));
        writer.writeEntityReference(QStringLiteral("#13"));
        start = at + 1;
    }
    if (start < text.size())
        writer.writeCharacters(text.sliced(start));
}

void writeElement(QXmlStreamWriter &writer, const UiElement &element)
{
    writer.writeStartElement(element.name);
    for (const auto &[name, value] : element.attributes)
        writer.writeAttribute(name, value);
    writeText(writer, element.text);
    for (const UiElement &child : element.children)
        writeElement(writer, child);
    writer.writeEndElement();
}

} // namespace

QString UiElement::attribute(QLatin1String wanted) const
{
    const auto found =
        std::find_if(attributes.cbegin(), attributes.cend(), [wanted](const auto &one) { return one.first == wanted; });
    return found != attributes.cend() ? found->second : QString();
}

bool UiElement::hasAttribute(QLatin1String wanted) const
{
    return std::any_of(attributes.cbegin(), attributes.cend(),
                       [wanted](const auto &one) { return one.first == wanted; });
}

const UiElement *UiElement::child(QLatin1String wanted) const
{
    const auto found =
        std::find_if(children.cbegin(), children.cend(), [wanted](const UiElement &one) { return one.is(wanted); });
    return found != children.cend() ? &*found : nullptr;
}

UiElement textElement(QLatin1String name, const QString &text) { return {name, {}, text}; }

UiXmlResult readUiXml(QByteArrayView text)
{
    if (text.size() > maximumUiSize)
        return {std::nullopt, {0, QStringLiteral("the file has more than %1 bytes").arg(maximumUiSize)}, {}};
    return UiParser(text).parse();
}

QByteArray writeUiXml(const UiElement &root)
{
    QByteArray text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartDocument();
    writeElement(writer, root);
    writer.writeEndDocument();
    return text;
}

QString writeUiFragment(const std::vector<UiElement> &elements)
{
    QString text;
    QXmlStreamWriter writer(&text);
    for (const UiElement &element : elements)
        writeElement(writer, element);
    return text;
}

std::optional<std::vector<UiElement>> readUiFragment(const QString &text)
{
    UiXmlResult read = readUiXml(QStringLiteral("<all>%1</all>").arg(text).toUtf8());
    if (!read.root || !read.root->text.isEmpty() || !read.comments.isEmpty())
        return std::nullopt;
    return std::move(read.root->children);
}

bool isXmlText(QStringView text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text.at(at);
        if (character.isHighSurrogate()) {
            if (++at == text.size() || !text.at(at).isLowSurrogate())
                return false;
        } else if (character.isLowSurrogate() || character.unicode() >= 0xfffe ||
                   (character < u' ' && character != u'\t' && character != u'\n' && character != u'\r')) {
            return false;
        }
    }
    return true;
}

} // namespace kor
