// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formtext.h"
#include "forms/wholefile.h"

#include <KorDaoUC/formfile.h>

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

constexpr QLatin1String beginWord("Begin");
constexpr QLatin1String endWord("End");
constexpr int indent = 3;

//! Builds the tree of blocks from the lines, one after the other. Blocks in progress lie on a stack of their own, so
//! that no text can exhaust the machine's.
class FormParser
{
public:
    //! Nothing, or the reason why the line is none of a form.
    std::optional<QString> addLine(const QString &line);
    //! The finished form. `lineCount` lines were added.
    FormResult finish(int lineCount);

    void nextLine() { ++m_line; }
    [[nodiscard]] FormResult failed(const QString &reason) const { return {std::nullopt, {m_line, reason}}; }

private:
    std::optional<QString> begin(LineReader &reader);
    std::optional<QString> end();
    std::optional<QString> setting(const QString &key, LineReader &reader);

    std::vector<FormBlock> m_open;
    std::optional<FormBlock> m_form;
    int m_line = 0;
};

std::optional<QString> FormParser::addLine(const QString &line)
{
    LineReader reader(line);
    if (reader.atEnd())
        return std::nullopt;
    const std::optional<LineReader::Word> word = reader.readName();
    if (!word)
        return reader.reason();
    std::optional<QString> reason;
    if (word->is(beginWord))
        reason = begin(reader);
    else if (word->is(endWord))
        reason = end();
    else
        reason = setting(word->text, reader);
    if (!reason && !reader.atEnd())
        reason = QStringLiteral("nothing more is expected on this line");
    return reason;
}

std::optional<QString> FormParser::begin(LineReader &reader)
{
    if (m_form)
        return QStringLiteral("a file holds one form; this would be the second");
    if (m_open.size() == FormFile::maximumDepth)
        return QStringLiteral("blocks lie more than %1 deep").arg(FormFile::maximumDepth);
    const std::optional<LineReader::Word> type = reader.readName();
    if (!type)
        return QStringLiteral("Begin needs the class of the control");
    QString name;
    if (!reader.atEnd()) {
        const std::optional<LineReader::Word> word = reader.readName();
        if (!word)
            return reader.reason();
        name = word->text;
    }
    m_open.push_back({type->text, name, {}, {}, m_line, {}});
    return std::nullopt;
}

std::optional<QString> FormParser::end()
{
    if (m_open.empty())
        return QStringLiteral("End without Begin");
    FormBlock block = std::move(m_open.back());
    m_open.pop_back();
    if (m_open.empty())
        m_form = std::move(block);
    else
        m_open.back().children.push_back(std::move(block));
    return std::nullopt;
}

std::optional<QString> FormParser::setting(const QString &key, LineReader &reader)
{
    if (m_open.empty())
        return QStringLiteral("'%1' stands outside of every block").arg(key);
    if (!reader.take(u'='))
        return QStringLiteral("'%1' must be followed by '=' and a value").arg(key);
    const std::optional<QVariant> value = reader.readValue();
    if (!value)
        return reader.reason();
    m_open.back().properties.append(key, *value);
    m_open.back().propertyLines.append(m_line);
    return std::nullopt;
}

FormResult FormParser::finish(int lineCount)
{
    if (!m_open.empty()) {
        m_line = m_open.back().line;
        return failed(QStringLiteral("the block that begins here has no End"));
    }
    if (!m_form) {
        m_line = std::max(lineCount, 1);
        return failed(QStringLiteral("there is no form in the file"));
    }
    return {std::move(m_form), {}};
}

bool isForbidden(QChar character) { return character < u' ' && character != u'\t'; }

void writeBlock(const FormBlock &block, int depth, QByteArray &text)
{
    const QByteArray margin(qsizetype(depth) * indent, ' ');
    text += margin + "Begin " + writeName(block.type).toUtf8();
    if (!block.name.isEmpty())
        text += ' ' + writeName(block.name).toUtf8();
    text += '\n';
    for (const auto &[key, value] : block.properties.entries()) {
        const bool isKeyword = key == beginWord || key == endWord;
        text += margin + QByteArray(indent, ' ') + (isKeyword ? writeText(key) : writeName(key)).toUtf8() + " = " +
                writeValue(value).toUtf8() + '\n';
    }
    for (const FormBlock &child : block.children)
        writeBlock(child, depth + 1, text);
    text += margin + "End\n";
}

QString tooLarge() { return QStringLiteral("the file has more than %1 bytes").arg(FormFile::maximumSize); }

} // namespace

bool FormBlock::operator==(const FormBlock &other) const
{
    return type == other.type && name == other.name && properties == other.properties && children == other.children;
}

FormResult FormFile::parse(QByteArrayView text)
{
    if (text.size() > maximumSize)
        return {std::nullopt, {0, tooLarge()}};
    if (text.startsWith("\xef\xbb\xbf"))
        text = text.sliced(3);

    FormParser parser;
    int lineCount = 0;
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf('\n');
        QByteArrayView bytes = end < 0 ? text : text.first(end);
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
        if (bytes.endsWith('\r'))
            bytes.chop(1);
        ++lineCount;
        parser.nextLine();

        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
        const QString line = decoder(bytes);
        if (decoder.hasError())
            return parser.failed(QStringLiteral("the line is not valid UTF-8"));
        if (std::any_of(line.cbegin(), line.cend(), isForbidden))
            return parser.failed(QStringLiteral("the line holds a control character; in texts write it as \\u0000"));
        if (const std::optional<QString> reason = parser.addLine(line))
            return parser.failed(*reason);
    }
    return parser.finish(lineCount);
}

QByteArray FormFile::serialize(const FormBlock &form)
{
    QByteArray text;
    writeBlock(form, 0, text);
    return text;
}

FormResult FormFile::load(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, {0, file.errorString()}};
    // A pipe has no size: reading stops by itself one byte past the limit, which parse() then refuses.
    const QByteArray text = file.read(maximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return {std::nullopt, {0, file.errorString()}};
    return parse(text);
}

std::optional<FormError> FormFile::save(const FormBlock &form, const QString &fileName)
{
    const QByteArray text = serialize(form);
    if (FormResult readBack = parse(text); !readBack.form)
        return readBack.error;
    if (const std::optional<QString> reason = writeWhole(fileName, text))
        return FormError{0, *reason};
    return std::nullopt;
}

} // namespace kor
