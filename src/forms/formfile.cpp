// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/formtext.h"

#include <KorDaoUC/formfile.h>
#include <KorDaoUC/wholefile.h>

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

constexpr QLatin1String beginWord("Begin");
constexpr QLatin1String endWord("End");
constexpr int indent = 3;

bool isForbidden(QChar character) { return character < u' ' && character != u'\t'; }

//! What to do with a line that is none: read no further, or find the other faults too.
enum class AfterFault { Stop, GoOn };

//! Builds the tree of blocks from the lines, one after the other. Blocks in progress lie on a stack of their own, so
//! that no text can exhaust the machine's.
class FormParser
{
public:
    explicit FormParser(AfterFault afterFault) : m_afterFault(afterFault) {}

    //! Reads lines, up to the first fault or all.
    void read(QByteArrayView text);

    [[nodiscard]] FormFile::Check take() { return std::move(m_result); }

private:
    [[nodiscard]] bool mustStop() const
    {
        constexpr qsizetype most = 10'000; // what has more faults is no form
        return m_result.faults.size() >= (m_afterFault == AfterFault::Stop ? 1 : most);
    }
    void addBytes(QByteArrayView bytes);
    //! Nothing, or the reason why the line is none of a form.
    std::optional<QString> addLine(const QString &line);
    std::optional<QString> begin(LineReader &reader);
    std::optional<QString> end();
    std::optional<QString> setting(const QString &key, LineReader &reader);
    void finish();
    void fail(int line, const QString &reason) { m_result.faults.append({line, reason}); }

    AfterFault m_afterFault;
    FormFile::Check m_result;
    std::vector<FormBlock> m_open;
    bool m_hasForm = false;
    int m_tooDeep = 0; //!< blocks that were not opened
    int m_line = 0;
};

void FormParser::read(QByteArrayView text)
{
    while (!text.isEmpty() && !mustStop()) {
        const qsizetype end = text.indexOf('\n');
        QByteArrayView bytes = end < 0 ? text : text.first(end);
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
        if (bytes.endsWith('\r'))
            bytes.chop(1);
        ++m_line;
        addBytes(bytes);
    }
    if (!mustStop())
        finish();
}

void FormParser::addBytes(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString line = decoder(bytes);
    if (decoder.hasError())
        fail(m_line, QStringLiteral("the line is not valid UTF-8"));
    else if (std::any_of(line.cbegin(), line.cend(), isForbidden))
        fail(m_line, QStringLiteral("the line holds a control character; in texts write it as \\u0000"));
    else if (const std::optional<QString> reason = addLine(line))
        fail(m_line, *reason);
}

std::optional<QString> FormParser::addLine(const QString &line)
{
    LineReader reader(line);
    if (reader.atComment())
        m_result.comments << m_line;
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
    if (!reason && reader.atComment())
        m_result.comments << m_line;
    return reason;
}

std::optional<QString> FormParser::begin(LineReader &reader)
{
    if (m_open.size() == FormFile::maximumDepth) {
        ++m_tooDeep;
        return QStringLiteral("blocks lie more than %1 deep").arg(FormFile::maximumDepth);
    }
    // A block that is none is opened all the same, or its End would end another one.
    m_open.push_back({{}, {}, {}, {}, m_line, {}});
    if (m_hasForm && m_open.size() == 1)
        return QStringLiteral("a file holds one form; this would be the second");
    const std::optional<LineReader::Word> type = reader.readName();
    if (!type)
        return QStringLiteral("Begin needs the class of the control");
    m_open.back().type = type->text;
    if (reader.atEnd())
        return std::nullopt;
    const std::optional<LineReader::Word> name = reader.readName();
    if (!name)
        return reader.reason();
    m_open.back().name = name->text;
    return std::nullopt;
}

std::optional<QString> FormParser::end()
{
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return std::nullopt;
    }
    if (m_open.empty())
        return QStringLiteral("End without Begin");
    FormBlock block = std::move(m_open.back());
    m_open.pop_back();
    if (m_open.empty() && !m_hasForm) {
        m_result.form = std::move(block);
        m_hasForm = true;
    } else if (!m_open.empty()) {
        m_open.back().children.push_back(std::move(block));
    }
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
    if (m_tooDeep > 0)
        return std::nullopt;
    m_open.back().properties.append(key, *value);
    m_open.back().propertyLines.append(m_line);
    return std::nullopt;
}

void FormParser::finish()
{
    const int lineCount = std::max(m_line, 1);
    m_tooDeep = 0;
    while (!m_open.empty() && !mustStop()) {
        fail(m_open.back().line, QStringLiteral("the block that begins here has no End"));
        (void)end();
    }
    if (!m_hasForm && !mustStop())
        fail(lineCount, QStringLiteral("there is no form in the file"));
    std::stable_sort(m_result.faults.begin(), m_result.faults.end(),
                     [](const FormError &left, const FormError &right) { return left.line < right.line; });
}

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

FormFile::Check read(QByteArrayView text, AfterFault afterFault)
{
    if (text.size() > FormFile::maximumSize)
        return {{{0, QStringLiteral("the file has more than %1 bytes").arg(FormFile::maximumSize)}}, {}, {}};
    FormParser parser(afterFault);
    parser.read(text.startsWith("\xef\xbb\xbf") ? text.sliced(3) : text);
    return parser.take();
}

} // namespace

bool FormBlock::operator==(const FormBlock &other) const
{
    return type == other.type && name == other.name && properties == other.properties && children == other.children;
}

FormResult FormFile::parse(QByteArrayView text)
{
    Check check = read(text, AfterFault::Stop);
    if (!check.faults.isEmpty())
        return {std::nullopt, check.faults.first()};
    return {std::move(check.form), {}};
}

FormFile::Check FormFile::check(QByteArrayView text) { return read(text, AfterFault::GoOn); }

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
