// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

#include <optional>

namespace kor {

// The words and values of which the lines of a form file are made.

//! A name of a key, a class or a control: as it stands when it is made of letters, digits, "_" and ".", else quoted.
[[nodiscard]] QString writeName(const QString &name);
//! A text in quotes: quotes doubled, backslashes and control characters escaped, so that it stays on its line.
[[nodiscard]] QString writeText(QStringView text);
//! A value in the notation that tells its type.
[[nodiscard]] QString writeValue(const QVariant &value);

//! Reads one line of a form file from left to right. Each read either gives the word or value and moves behind it, or
//! gives nothing and leaves the reason.
class LineReader
{
public:
    struct Word {
        QString text;
        bool quoted = false;
        //! Whether the word is this keyword. A quoted word is none.
        [[nodiscard]] bool is(QLatin1String keyword) const { return !quoted && text == keyword; }
    };

    explicit LineReader(QStringView line) : m_line(line) {}

    //! Whether nothing is left but blanks and a comment.
    [[nodiscard]] bool atEnd();
    //! Whether a comment is what is left.
    [[nodiscard]] bool atComment() { return atEnd() && m_at < m_line.size(); }
    //! Passes over the character if it comes next.
    [[nodiscard]] bool take(QChar character);

    [[nodiscard]] std::optional<Word> readName();
    [[nodiscard]] std::optional<QVariant> readValue();

    [[nodiscard]] const QString &reason() const { return m_reason; }

private:
    [[nodiscard]] std::optional<QString> readText();
    [[nodiscard]] std::optional<QChar> readEscape();
    [[nodiscard]] std::optional<QVariant> readFont();
    [[nodiscard]] std::optional<QVariant> readDate();
    [[nodiscard]] std::optional<QVariant> readNumber(QStringView token);
    [[nodiscard]] QStringView readToken();
    std::nullopt_t fail(const QString &reason);

    QStringView m_line;
    qsizetype m_at = 0;
    QString m_reason;
};

} // namespace kor
