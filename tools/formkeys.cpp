// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// Prints docs/form-keys.md, made from the settings tables of the controls. Given a file, says instead where it differs.
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/UserControl>
#include <KorDaoUC/Variant>

#include <QtCore/QFile>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace {

//! What a table can't say of its row.
struct Oddity {
    const char *control;
    const char *key;
    const char *text;
};

constexpr std::array oddities{
    Oddity{"KorDate", "Text", "a new control holds today in it and in `Value`"},
    Oddity{"KorCombo", "HelpText", "the tool tip under its old key; `ToolTipText` is read later and overrules it"},
    Oddity{"KorClick", "SelText", "saved, but the text of the selection is in `Text` already"},
    Oddity{"KorClick", "SelLength", "read after `SelStart`"},
    Oddity{"KorClick", "LockedText", "the property `Locked`"},
    Oddity{"KorListCheck", "Database", "an old key that says nothing: it never was the database"},
    Oddity{"KorListCheck", "ValueChecked", "as last set; loading checks nothing, for there are no entries yet"},
    Oddity{"KorListCheck", "TextChecked", "as last set; loading checks nothing"},
    Oddity{"KorColor", "Value", "the colour shown; a loaded control shows the entry of a new one all the same"},
    Oddity{"KorUpDown", "MaxLength", "read after all others"},
    Oddity{"KorMultiText", "OpenDrection", "spelt so"},
};

QString typeName(const kor::SavedSetting &setting)
{
    switch (setting.defaultValue.typeId()) {
    case QMetaType::Bool: return QStringLiteral("Boolean");
    case QMetaType::Short: return QStringLiteral("Integer");
    case QMetaType::Int: return QStringLiteral("Long");
    case QMetaType::Float: return QStringLiteral("Single");
    case QMetaType::Double: return QStringLiteral("Double");
    case QMetaType::QString: return QStringLiteral("String");
    case QMetaType::QFont: return QStringLiteral("Font");
    default: return QStringLiteral("any");
    }
}

//! The default as a form file would have it.
QString written(const kor::SavedSetting &setting)
{
    if (setting.defaultValue.typeId() == QMetaType::QFont)
        return QStringLiteral("that of the form");
    kor::FormBlock block{QStringLiteral("Form"), {}, {}, {}};
    block.properties.append(setting.key, setting.defaultValue);
    const QString text = QString::fromUtf8(kor::FormFile::serialize(block));
    const qsizetype start = text.indexOf(QLatin1String(" = ")) + 3;
    return u'`' + text.sliced(start, text.indexOf(u'\n', start) - start) + u'`';
}

QString remarks(const QString &control, const QList<kor::SavedSetting> &settings, qsizetype place)
{
    const kor::SavedSetting &setting = settings.at(place);
    const auto isSame = [&](const kor::SavedSetting &other) { return other.key == setting.key; };
    const bool isAgain = std::any_of(settings.cbegin(), settings.cbegin() + place, isSame);
    QStringList all;
    switch (setting.use) {
    case kor::SettingUse::ReadAndWrite:
        if (isAgain)
            all << QStringLiteral("written and read once more");
        break;
    case kor::SettingUse::WriteOnly:
        all << (isAgain ? QStringLiteral("written once more") : QStringLiteral("written, never read"));
        break;
    case kor::SettingUse::ReadOnly:
        all << (isAgain ? QStringLiteral("read once more") : QStringLiteral("read, never written"));
        break;
    }
    for (const Oddity &oddity : oddities) {
        if (control == QLatin1String(oddity.control) && setting.key == QLatin1String(oddity.key))
            all << QString::fromUtf8(oddity.text);
    }
    return all.join(QStringLiteral("; "));
}

QString section(const QString &control, int &told)
{
    const std::unique_ptr<kor::UserControl> widget(kor::ControlRegistry::create(control, nullptr));
    const QList<kor::SavedSetting> settings = widget->savedSettings();
    QString text = QStringLiteral("\n## KorDaoUC.%1\n\n| key | type | default | |\n|---|---|---|---|\n").arg(control);
    for (qsizetype place = 0; place < settings.size(); ++place) {
        const kor::SavedSetting &setting = settings.at(place);
        text += QStringLiteral("| `%1` | %2 | %3 |").arg(setting.key, typeName(setting), written(setting));
        if (const QString remark = remarks(control, settings, place); !remark.isEmpty())
            text += u' ' + remark;
        text += QStringLiteral(" |\n");
    }
    told += static_cast<int>(std::count_if(oddities.begin(), oddities.end(), [&](const Oddity &oddity) {
        return control == QLatin1String(oddity.control) &&
               std::any_of(settings.cbegin(), settings.cend(),
                           [&](const kor::SavedSetting &setting) { return setting.key == QLatin1String(oddity.key); });
    }));
    return text;
}

QByteArray page()
{
    QString text = QStringLiteral(
        "# Form-file keys\n\n"
        "The keys of every control in a [form file](forms.md), in the order in which they are written. A key that is\n"
        "missing yields the default, and a value equal to it is not written. Besides, every control has `Left`, "
        "`Top`,\n"
        "`Width`, `Height` and `TabIndex`. Types and values are written as forms.md says; \"any\" takes whatever the\n"
        "property takes, and an Integer is mostly an enumeration.\n\n"
        "This page is made from the controls' own settings tables: `build/dev/bin/formkeys > docs/form-keys.md`. A "
        "test\n"
        "fails when it is stale.\n");
    int told = 0;
    for (const QString &control : kor::ControlRegistry::names())
        text += section(control, told);
    if (told != static_cast<int>(oddities.size()))
        throw std::logic_error("an oddity is told of a key that no control has");
    return text.toUtf8();
}

int compare(const QByteArray &made, const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(fileName), qPrintable(file.errorString()));
        return 1;
    }
    const QByteArrayList expected = made.split('\n');
    const QByteArrayList found = file.readAll().split('\n');
    for (qsizetype line = 0; line < std::max(expected.size(), found.size()); ++line) {
        if (expected.value(line) == found.value(line) && line < expected.size() && line < found.size())
            continue;
        std::fprintf(stderr, "%s:%lld: is stale\n  there: %s\n  now:   %s\n", qPrintable(fileName),
                     static_cast<long long>(line + 1), found.value(line).constData(), expected.value(line).constData());
        return 1;
    }
    return 0;
}

} // namespace

int main(int count, char **arguments)
{
    QApplication application(count, arguments);
    const QByteArray made = page();
    if (const QStringList given = application.arguments().sliced(1); !given.isEmpty())
        return compare(made, given.first());
    std::fwrite(made.constData(), 1, static_cast<std::size_t>(made.size()), stdout);
    return 0;
}
