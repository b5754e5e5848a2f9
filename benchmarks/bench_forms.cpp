// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "run.h"

#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/FormFile>

#include <QtCore/QBuffer>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <array>
#include <benchmark/benchmark.h>
#include <memory>

// Forms of two hundred controls, against the same with the toolkit's widgets of those kinds: one of fields only, and
// one with a grid in every tenth place. A grid holds an editor for each type of column, so it weighs as much as many
// fields. The end of the window is not counted here, but with the life of a form that was shown.

namespace {

struct Kind {
    const char *control;
    const char *stock;         //!< the toolkit's widget for the same entry
    const char *settings;      //!< of the control in a .ui file
    const char *stockSettings; //!< the same of the widget
    const char *keys;          //!< the same in a form file
};

constexpr std::array kinds{
    Kind{"KorNumber", "QDoubleSpinBox",
         "<property name=\"MaskPicture\"><string>#,##0.000</string></property>"
         "<property name=\"ToolTipText\"><string>Zaliczka</string></property>",
         "<property name=\"decimals\"><number>3</number></property>"
         "<property name=\"toolTip\"><string>Zaliczka</string></property>",
         "MaskPicture = \"#,##0.000\"\nToolTipText = \"Zaliczka\"\n"},
    Kind{"KorDate", "QDateEdit",
         "<property name=\"BlockUpDown\"><bool>true</bool></property>"
         "<property name=\"ToolTipText\"><string>Termin</string></property>",
         "<property name=\"calendarPopup\"><bool>true</bool></property>"
         "<property name=\"toolTip\"><string>Termin</string></property>",
         "BlockUpDown = True\nToolTipText = \"Termin\"\n"},
    Kind{"KorCombo", "QComboBox",
         "<property name=\"SQL\"><string>LIST 1;Tak|0;Nie</string></property>"
         "<property name=\"ToolTipText\"><string>Zgoda</string></property>",
         "<item><property name=\"text\"><string>Tak</string></property></item>"
         "<item><property name=\"text\"><string>Nie</string></property></item>",
         "SQL = \"LIST 1;Tak|0;Nie\"\nToolTipText = \"Zgoda\"\n"},
    Kind{"KorClick", "QLineEdit",
         "<property name=\"Text\"><string>Kowalski</string></property>"
         "<property name=\"MaxLength\"><number>40</number></property>",
         "<property name=\"text\"><string>Kowalski</string></property>"
         "<property name=\"maxLength\"><number>40</number></property>",
         "Text = \"Kowalski\"\nMaxLength = 40\n"},
    Kind{"KorList", "QListWidget",
         "<property name=\"SQL\"><string>LIST 1;Tak|0;Nie</string></property>"
         "<property name=\"ToolTipText\"><string>Zgoda</string></property>",
         "<item><property name=\"text\"><string>Tak</string></property></item>"
         "<item><property name=\"text\"><string>Nie</string></property></item>",
         "SQL = \"LIST 1;Tak|0;Nie\"\nToolTipText = \"Zgoda\"\n"},
    Kind{"KorListCheck", "QListWidget",
         "<property name=\"SQL\"><string>LIST 1;Tak|0;Nie</string></property>"
         "<property name=\"ToolTipText\"><string>Zgody</string></property>",
         "<item><property name=\"text\"><string>Tak</string></property></item>"
         "<item><property name=\"text\"><string>Nie</string></property></item>",
         "SQL = \"LIST 1;Tak|0;Nie\"\nToolTipText = \"Zgody\"\n"},
    Kind{"KorColor", "QComboBox", "<property name=\"ToolTipText\"><string>Kolor</string></property>",
         "<property name=\"toolTip\"><string>Kolor</string></property>"
         "<item><property name=\"text\"><string>Czarny</string></property></item>",
         "ToolTipText = \"Kolor\"\n"},
    Kind{"KorUpDown", "QSpinBox",
         "<property name=\"MaxLength\"><number>4</number></property>"
         "<property name=\"Value\"><number>3</number></property>",
         "<property name=\"maximum\"><number>10</number></property>"
         "<property name=\"value\"><number>3</number></property>",
         "MaxLength = 4\nValue = 3\n"},
    Kind{"KorMultiText", "QPlainTextEdit", "<property name=\"Text\"><string>Uwagi do zamówienia</string></property>",
         "<property name=\"plainText\"><string>Uwagi do zamówienia</string></property>",
         "Text = \"Uwagi do zamówienia\"\n"},
    Kind{"KorGrid", "QTableWidget",
         "<property name=\"Rows\"><number>5</number></property><property name=\"Cols\"><number>4</number></property>",
         "<property name=\"rowCount\"><number>5</number></property>"
         "<property name=\"columnCount\"><number>4</number></property>",
         "Cols = 4\nRows = 5\n"},
};

constexpr std::size_t controls = 200;
constexpr std::size_t fieldKinds = kinds.size() - 1; // the last one is the grid

//! A form whose controls take turns in their kinds.
struct Form {
    std::size_t kindsInUse;
    bool isStock = false;

    [[nodiscard]] const Kind &kindAt(std::size_t place) const { return kinds.at(place % kindsInUse); }
    [[nodiscard]] const char *classAt(std::size_t place) const
    {
        return isStock ? kindAt(place).stock : kindAt(place).control;
    }
    //! Whether all controls are there, and are what they should be.
    [[nodiscard]] bool isWhole(const QWidget &window) const
    {
        const auto all = window.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        if (all.size() != static_cast<qsizetype>(controls))
            return false;
        for (std::size_t i = 0; i < controls; ++i) {
            if (!all[static_cast<qsizetype>(i)]->inherits(classAt(i)))
                return false;
        }
        return true;
    }
};

QByteArray uiFile(const Form &form)
{
    QByteArray text = "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">";
    for (std::size_t i = 0; i < controls; ++i) {
        const Kind &kind = form.kindAt(i);
        text += "<widget class=\"" + QByteArray(form.classAt(i)) + "\" name=\"field" + QByteArray::number(i) +
                "\"><property name=\"geometry\"><rect><x>10</x><y>" + QByteArray::number(30 * i) +
                "</y><width>160</width><height>24</height></rect></property>" +
                (form.isStock ? kind.stockSettings : kind.settings) + "</widget>";
    }
    return text + "</widget></ui>";
}

QByteArray formFile(const Form &form)
{
    QByteArray text = "Begin Form frmLarge\n";
    for (std::size_t i = 0; i < controls; ++i) {
        text += "Begin KorDaoUC." + QByteArray(form.classAt(i)) + " field" + QByteArray::number(i) +
                "\nLeft = 150\nTop = " + QByteArray::number(450 * i) + "\nWidth = 2400\nHeight = 360\n" +
                form.kindAt(i).keys + "End\n";
    }
    return text + "End\n";
}

void loadUi(benchmark::State &state, const Form &form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER));
    QByteArray text = uiFile(form);
    for (auto _ : state) {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        std::unique_ptr<QWidget> window(loader.load(&buffer));
        state.PauseTiming();
        if (!window || !form.isWhole(*window)) {
            state.SkipWithError("the form was not loaded");
            return;
        }
        window.reset();
        state.ResumeTiming();
    }
}

void loadFile(benchmark::State &state, const Form &form)
{
    const QByteArray text = formFile(form);
    for (auto _ : state) {
        auto window = std::make_unique<QWidget>();
        kor::FormBuilder builder;
        const auto parsed = kor::FormFile::parse(text);
        const bool isBuilt = parsed.form && !builder.build(*parsed.form, window.get());
        state.PauseTiming();
        if (!isBuilt || !form.isWhole(*window)) {
            state.SkipWithError("the form was not built");
            return;
        }
        window.reset();
        state.ResumeTiming();
    }
}

using Load = void (*)(benchmark::State &, const Form &);

void add(const char *name, Load load, const Form &form, const char *goal = "")
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) {
        state.SetLabel(goal);
        load(state, form);
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const Form fields{fieldKinds};
    const Form withGrids{kinds.size()};
    add("LoadForm/ui/fields/kor", loadUi, fields, "goal stock 1.5");
    add("LoadForm/ui/fields/peer:stock", loadUi, {fieldKinds, true});
    add("LoadForm/file/fields/kor", loadFile, fields, "goal stock 1");
    add("LoadForm/file/fields/peer:stock", loadUi, {fieldKinds, true});
    add("LoadForm/ui/grids/kor", loadUi, withGrids, "goal stock 1.6");
    add("LoadForm/ui/grids/peer:stock", loadUi, {kinds.size(), true});
    add("LoadForm/file/grids/kor", loadFile, withGrids, "goal stock 1.6");
    add("LoadForm/file/grids/peer:stock", loadUi, {kinds.size(), true});
    return runBenchmarks(argc, argv);
}
