// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// All eleven controls on one window, each under its name: a delivery note. `gallery --picture FILE` leaves a picture
// of it and ends.
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/KorUpDown>

#include <QtCore/QDate>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace {

//! A control under its name, in the next row of a column.
template <class Control>
Control *add(QFormLayout &column, const char *name)
{
    auto *control = new Control;
    column.addRow(QLatin1String(name), control);
    return control;
}

//! A control below its name, for those that take more than a line.
template <class Control>
Control *add(QGridLayout &layout, const char *name, int row, int column)
{
    auto *control = new Control;
    layout.addWidget(new QLabel(QLatin1String(name)), row, column);
    layout.addWidget(control, row + 1, column);
    return control;
}

QFormLayout *makeFields()
{
    auto *fields = new QFormLayout;
    fields->setVerticalSpacing(8);
    fields->setHorizontalSpacing(12);
    auto *amount = add<KorNumber>(*fields, "KorNumber");
    amount->setMaskPicture(QStringLiteral("#,##0.00 zł"));
    amount->setValue(12345.6);
    add<KorDate>(*fields, "KorDate")->setValue(QDate(2026, 11, 30));
    auto *payment = add<KorCombo>(*fields, "KorCombo");
    payment->setSQL(QStringLiteral("LIST 1;gotówka|2;przelew 14 dni|3;karta"));
    payment->Refresh();
    payment->setValue(2);
    auto *customer = add<KorClick>(*fields, "KorClick");
    customer->setText(QStringLiteral("Łódzka Spółka z o.o."));
    auto *copies = add<KorUpDown>(*fields, "KorUpDown");
    copies->setValue(3);
    add<KorColor>(*fields, "KorColor")->setValue(0x0000FF);
    add<KorMultiText>(*fields, "KorMultiText")->setText(QStringLiteral("Proszę dzwonić przed przyjazdem"));
    return fields;
}

void fillLines(KorGrid &lines)
{
    lines.setBackColor(kor::WindowBackground);
    lines.AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 3400, 0);
    lines.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Ilość"), 900, 1, false, QStringLiteral("#,##0"));
    lines.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1200, 1);
    const QList<std::tuple<QString, int, double>> goods = {
        {QStringLiteral("Gaśnica proszkowa 4 kg"), 100, 135.69},
        {QStringLiteral("Młotek ślusarski 300 g"), 6, 25.69},
        {QStringLiteral("Żarówka LED E27 5 W"), 70, 5.89},
    };
    lines.setRows(static_cast<int>(goods.size()) + 1);
    for (int row = 1; const auto &[name, count, price] : goods) {
        lines.setValue(row, 1, name);
        lines.setValue(row, 2, count);
        lines.setValue(row, 3, price);
        ++row;
    }
}

void fillParameters(KorParam &sheet)
{
    sheet.setColNameWidth(1800);
    sheet.AddParam(QStringLiteral("Od dnia"), QStringLiteral("od"), QStringLiteral("DATE"), QDate(2026, 11, 1));
    sheet.AddParam(QStringLiteral("Kwota od"), QStringLiteral("kwota"), QStringLiteral("NUMBER"), 100);
    sheet.AddParam(QStringLiteral("Magazyn"), QStringLiteral("mag"), QStringLiteral("COMBO"), QStringLiteral("1"), {},
                   0, {}, QStringLiteral("LIST 1;Magazyn główny|2;Skład celny"));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("KorDaoUC"));
    auto *layout = new QGridLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setHorizontalSpacing(24);
    layout->setVerticalSpacing(6);
    layout->setColumnStretch(0, 3);
    layout->setColumnStretch(1, 2);

    layout->addLayout(makeFields(), 0, 0, 4, 1);
    auto *units = add<KorList>(*layout, "KorList", 0, 1);
    units->setSQL(QStringLiteral("LIST kg;kilogram|m;metr|op;opakowanie|szt;sztuka"));
    units->Refresh();
    units->setValue(QStringLiteral("op"));
    auto *groups = add<KorListCheck>(*layout, "KorListCheck", 2, 1);
    groups->setSQL(QStringLiteral("LIST 1;firmy budowlane|2;gastronomia|3;sklepy i hurtownie|4;szkoły"));
    groups->Refresh();
    groups->setValueChecked(QStringLiteral("1;3;"));
    fillLines(*add<KorGrid>(*layout, "KorGrid", 4, 0));
    fillParameters(*add<KorParam>(*layout, "KorParam", 4, 1));
    window.resize(860, 440);
    window.show();

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QStringLiteral("--picture")) {
        QApplication::processEvents();
        return window.grab().save(arguments[2]) ? 0 : 1;
    }
    return QApplication::exec();
}
