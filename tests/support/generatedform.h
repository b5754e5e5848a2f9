// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/Currency>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/UserControl>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtCore/QRandomGenerator>
#include <QtGui/QFont>

#include <memory>

namespace kor::test {

//! A form with odd texts and values, the same for the same seed: every kind of block, keys of their controls and
//! others, in any order and number, blocks within blocks.
class FormGenerator
{
public:
    explicit FormGenerator(int seed) : m_random(static_cast<quint32>(seed)) {}

    FormBlock form()
    {
        FormBlock block{QStringLiteral("Form"), name(), {}, {}};
        fill(block, {QStringLiteral("Caption"), QStringLiteral("Font"), QStringLiteral("Width"),
                     QStringLiteral("Height"), QStringLiteral("TabIndex")});
        addChildren(block, 12, 3);
        return block;
    }

private:
    int below(int count) { return m_random.bounded(count); }
    bool now(int oneOf) { return below(oneOf) == 0; }

    QString name()
    {
        static const QStringList odd{QString(),
                                     QStringLiteral("lbl(3)"),
                                     QStringLiteral("zażółć"),
                                     QStringLiteral("a \"b\" <c> & d"),
                                     QStringLiteral("a\nb"),
                                     QStringLiteral("\u0001"),
                                     QStringLiteral("End")};
        return now(8) ? odd.at(below(static_cast<int>(odd.size()))) : QStringLiteral("c%1").arg(++m_number);
    }

    QString text()
    {
        static const QStringList odd{QString(),
                                     QStringLiteral(" "),
                                     QStringLiteral("  \t\n"),
                                     QStringLiteral("zażółć gęślą jaźń"),
                                     QStringLiteral("\"12\"\" x 8\""),
                                     QStringLiteral("a\nb\r\nc\rd"),
                                     QStringLiteral("&Cena && <b>"),
                                     QStringLiteral("trailing  "),
                                     QStringLiteral("\u0001\u0002x") + QChar(0),
                                     QStringLiteral("]]>"),
                                     QStringLiteral("a\u00a0"),
                                     QString(QChar(0xd800)),
                                     QString(QChar(0xffff)),
                                     QStringLiteral("\U0001F600"),
                                     QStringLiteral("\ufeffx"),
                                     QStringLiteral("\\u0041"),
                                     QStringLiteral("<?xml?>"),
                                     QStringLiteral("LIST 1;a|2;b")};
        if (now(40))
            return QStringLiteral("ź<&> ").repeated(4000);
        QString result = odd.at(below(static_cast<int>(odd.size())));
        return now(3) ? result + odd.at(below(static_cast<int>(odd.size()))) : result;
    }

    QVariant value()
    {
        switch (below(16)) {
        case 0: return QVariant();
        case 1: return null();
        case 2: return missing();
        case 3: return now(2);
        case 4: return QVariant::fromValue(static_cast<uchar>(below(256)));
        case 5: return QVariant::fromValue(static_cast<short>(below(5)));
        case 6: return static_cast<int>(m_random.generate());
        case 7: return below(4000);
        case 8: return static_cast<float>(below(1000)) / 10.0F;
        case 9: return m_random.generateDouble() * 1e6;
        case 10: return QVariant::fromValue(Currency::fromDouble(below(100000) / 100.0));
        case 11: return QDate(2000 + below(30), 1 + below(12), 1 + below(28));
        case 12: return QDateTime(QDate(2026, 2, 3), QTime(below(24), below(60), 7, below(2) * 250), Qt::UTC);
        case 13: {
            QFont font(QStringLiteral("DejaVu Sans"));
            font.setPointSizeF(now(2) ? 8.25 : 6 + below(20));
            font.setBold(now(2));
            font.setUnderline(now(3));
            if (now(4))
                font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
            return font;
        }
        default: return text();
        }
    }

    //! Mostly of the type that the key has.
    QVariant valueLike(const QVariant &usual)
    {
        if (now(5))
            return value();
        switch (usual.typeId()) {
        case QMetaType::Bool: return now(2);
        case QMetaType::Short: return QVariant::fromValue(static_cast<short>(below(3)));
        case QMetaType::Int: return now(2) ? below(3000) : static_cast<int>(m_random.generate());
        case QMetaType::Float: return static_cast<float>(below(1000)) / 10.0F;
        case QMetaType::QString: return text();
        default: return value();
        }
    }

    void fill(FormBlock &block, const QStringList &keys, const QVariantList &usual = {})
    {
        for (qsizetype key = 0; key < keys.size(); ++key) {
            if (!now(3))
                block.properties.append(keys.at(key), valueLike(usual.value(key, 0)));
        }
        while (now(3))
            block.properties.append(keys.at(below(static_cast<int>(keys.size()))), value());
        while (now(4))
            block.properties.append(now(2) ? QStringLiteral("Tag") : name(), value());
    }

    FormBlock control(int depth)
    {
        const QStringList controls = ControlRegistry::names();
        static const QStringList others{QStringLiteral("Label"),     QStringLiteral("CommandButton"),
                                        QStringLiteral("Frame"),     QStringLiteral("Form"),
                                        QStringLiteral("TextBox"),   QStringLiteral("ui.QLineEdit"),
                                        QStringLiteral("odd <name>")};
        QStringList keys{QStringLiteral("Left"), QStringLiteral("Top"), QStringLiteral("Width"),
                         QStringLiteral("Height"), QStringLiteral("TabIndex")};
        QVariantList usual(keys.size(), 0);
        FormBlock block;
        block.name = name();
        if (now(3)) {
            block.type = others.at(below(static_cast<int>(others.size())));
            keys += {QStringLiteral("Caption"), QStringLiteral("Alignment"), QStringLiteral("Enabled")};
            usual += {QString(), QVariant::fromValue(short(0)), true};
            fill(block, keys, usual);
            if (block.type == u"Frame")
                addChildren(block, 6, depth - 1);
            return block;
        }
        const QString type = controls.at(below(static_cast<int>(controls.size())));
        block.type = QStringLiteral("KorDaoUC.") + type;
        const std::unique_ptr<UserControl> made(ControlRegistry::create(type));
        for (const SavedSetting &setting : made->savedSettings()) {
            keys << setting.key;
            usual << setting.defaultValue;
        }
        fill(block, keys, usual);
        return block;
    }

    void addChildren(FormBlock &block, int most, int depth)
    {
        if (depth == 0)
            return;
        for (int count = below(most); count > 0; --count)
            block.children.push_back(control(depth));
    }

    QRandomGenerator m_random;
    int m_number = 0;
};

[[nodiscard]] inline FormBlock generatedForm(int seed) { return FormGenerator(seed).form(); }

} // namespace kor::test
