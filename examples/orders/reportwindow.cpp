// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "reportwindow.h"

#include "barchart.h"
#include "focusmark.h"
#include "foldedtext.h"
#include "gridfile.h"
#include "messages.h"
#include "orderstore.h"
#include "progress.h"
#include "savedfile.h"
#include "searchdialog.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Color>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/Variant>

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace orders {

namespace {

constexpr double grosze = 100;

const QString title = QStringLiteral("Sprzedaż");
const QString from = QStringLiteral("OD");
const QString to = QStringLiteral("DO");
const QString customer = QStringLiteral("KLIENT");
const QString group = QStringLiteral("GRUPA");
const QString least = QStringLiteral("KWOTA");
const QString remarks = QStringLiteral("UWAGI");

enum Column { Number, Name, Orders, Amount, Share };

SearchSubject groupsToSearch()
{
    SearchSubject subject;
    subject.title = QStringLiteral("Grupuj według");
    subject.label = QStringLiteral("&Nazwa:");
    subject.accept = QStringLiteral("&Wybierz");
    subject.columns = QStringList{QStringLiteral("Grupowanie")};
    subject.found = QStringLiteral("Grupowania");
    subject.nothing = QStringLiteral("Nie ma takiego grupowania.");
    subject.find = [](const QString &text, int /*atMost*/) {
        QList<SearchSubject::Row> rows;
        const QList<ReportGroup> groups = reportGroups();
        for (qsizetype at = 0; at < groups.size(); ++at) {
            const QString name = nameOf(groups.at(at));
            if (folded(name).contains(folded(text)))
                rows.append({at + 1, QStringList{name}});
        }
        return rows;
    };
    return subject;
}

std::optional<QDate> dateOf(const QVariant &value)
{
    const QDate date = value.toDate();
    return date.isValid() ? std::optional(date) : std::nullopt;
}

bool isEntered(const QVariant &value) { return !kor::isNull(value) && !kor::isMissing(value); }

} // namespace

ReportWindow::ReportWindow(const OrderStore &store, kor::Database &database, QWidget *parent)
    : QDialog(parent),
      m_store(store),
      m_parameters(new KorParam),
      m_rows(new KorGrid),
      m_chart(new BarChart),
      m_total(new QLabel)
{
    setWindowTitle(QStringLiteral("Zestawienie sprzedaży"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_parameters->setObjectName(QStringLiteral("parReport"));
    m_parameters->setAccessibleName(QStringLiteral("Parametry"));
    m_rows->setObjectName(QStringLiteral("grdReport"));
    m_rows->setAccessibleName(QStringLiteral("Zestawienie"));
    m_total->setObjectName(QStringLiteral("lblTotal"));
    m_total->setText(QStringLiteral("Podaj parametry i wybierz Pokaż."));

    auto *buttons = new QDialogButtonBox(Qt::Vertical);
    auto *go = buttons->addButton(QStringLiteral("&Pokaż"), QDialogButtonBox::ActionRole);
    m_pdf = buttons->addButton(QStringLiteral("&Drukuj do PDF..."), QDialogButtonBox::ActionRole);
    m_export = buttons->addButton(QStringLiteral("&Eksportuj..."), QDialogButtonBox::ActionRole);
    buttons->addButton(QStringLiteral("&Zamknij"), QDialogButtonBox::RejectRole);
    go->setDefault(true);
    m_pdf->setAutoDefault(false);
    m_pdf->setEnabled(false);
    m_export->setAutoDefault(false);
    m_export->setEnabled(false);

    auto *above = new QHBoxLayout;
    above->addWidget(m_parameters, 1);
    above->addWidget(buttons);
    auto *below = new QSplitter;
    below->addWidget(m_rows);
    below->addWidget(m_chart);
    below->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(above);
    layout->addWidget(below, 1);
    layout->addWidget(m_total);

    addParameters(database);
    addColumns();
    setTabOrder(m_parameters, go);
    setTabOrder(go, m_pdf);
    setTabOrder(m_pdf, m_export);
    setTabOrder(m_export, m_rows);
    resize(1000, 640);
    below->setSizes({590, 390});
    new FocusMark(this);

    connect(go, &QPushButton::clicked, this, &ReportWindow::showReport);
    connect(m_pdf, &QPushButton::clicked, this, &ReportWindow::askForPdf);
    connect(m_export, &QPushButton::clicked, this, &ReportWindow::exportRows);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_parameters, &KorParam::ClickClick, this, &ReportWindow::choose);
}

void ReportWindow::addParameters(kor::Database &database)
{
    const QDate today = kor::Clock::today();
    const QString customers = QStringLiteral("SELECT id, name FROM customers ORDER BY sort_name");
    m_parameters->setBorderStyle(kor::BorderStyleType::FixedSingle);
    m_parameters->setdatabase(&database);
    m_parameters->AddParam(QStringLiteral("Okres od"), from, QStringLiteral("DATE"), QDate(today.year(), 1, 1));
    m_parameters->AddParam(QStringLiteral("Okres do"), to, QStringLiteral("DATE"), today);
    m_parameters->AddParam(QStringLiteral("Klient"), customer, QStringLiteral("COMBO"), kor::null(), {}, 0, {},
                           customers, QStringLiteral("(wszyscy)"), 0, 0, {}, QStringLiteral("klienci"));
    m_parameters->AddParam(QStringLiteral("Grupuj według"), group, QStringLiteral("CLICK"),
                           static_cast<int>(ReportGroup::Customer), {}, 0, {}, {}, {}, 0, 0,
                           nameOf(ReportGroup::Customer));
    m_parameters->AddParam(QStringLiteral("Wartość zamówienia od"), least, QStringLiteral("NUMBER"), kor::null(), {}, 0,
                           {}, {}, {}, 0, 0, {}, {}, QStringLiteral("#,##0.00"));
    m_parameters->AddParam(QStringLiteral("Uwagi zawierają"), remarks, QStringLiteral("TEXT"), QString());
    m_parameters->setMinimumHeight(m_parameters->Rows() * fontMetrics().height() * 3 / 2);
}

void ReportWindow::addColumns()
{
    const bool isLocked = true; // a result is read, not edited
    m_rows->setBorderStyle(kor::BorderStyleType::FixedSingle);
    m_rows->setBackColor(kor::WindowBackground);
    m_rows->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Nazwa"), 3400, 0, isLocked);
    m_rows->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Zamówień"), 1100, 1, isLocked, QStringLiteral("#,##0"));
    m_rows->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Wartość [zł]"), 1600, 1, isLocked);
    m_rows->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Udział"), 900, 1, isLocked);
    m_rows->setTextControl(0, Number, QStringLiteral("Lp."));
    m_rows->setRows(1);
}

//! Calls with each parameter as the current one, and goes back to where the clerk was.
template <class Visit>
void ReportWindow::visitParameters(Visit &&visit) const
{
    const int row = m_parameters->Row();
    for (int at = 1; at < m_parameters->Rows(); ++at) {
        m_parameters->setRow(at);
        visit();
    }
    m_parameters->setRow(row);
}

ReportQuestion ReportWindow::question() const
{
    ReportQuestion question;
    visitParameters([&] {
        const QString symbol = m_parameters->ParSymbol();
        const QVariant value = m_parameters->ParValue();
        if (!isEntered(value))
            return;
        if (symbol == from)
            question.from = dateOf(value);
        else if (symbol == to)
            question.to = dateOf(value);
        else if (symbol == customer)
            question.customer = value.toLongLong();
        else if (symbol == group)
            question.group = static_cast<ReportGroup>(value.toInt());
        else if (symbol == least)
            question.least = std::llround(value.toDouble() * grosze);
        else if (symbol == remarks)
            question.remarks = value.toString();
    });
    return question;
}

QStringList ReportWindow::parameterTexts() const
{
    QStringList texts;
    visitParameters([&] {
        if (!m_parameters->ParText().isEmpty())
            texts << m_parameters->ParName() + QStringLiteral(": ") + m_parameters->ParText();
    });
    return texts;
}

void ReportWindow::choose(const QString &symbol)
{
    if (symbol != group)
        return;
    SearchDialog dialog(groupsToSearch(), this);
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    activateWindow();
    if (!isChosen || dialog.chosen() == 0)
        return;
    const ReportGroup chosen = reportGroups().at(dialog.chosen() - 1);
    m_parameters->setClickText(nameOf(chosen));
    m_parameters->setClickValue(static_cast<int>(chosen));
}

bool ReportWindow::showReport()
{
    if (!kor::leaveFocusedField(this))
        return false;
    const ReportQuestion asked = question();
    if (asked.from && asked.to && *asked.from > *asked.to) {
        warn(this, title, QStringLiteral("Okres kończy się, zanim się zaczyna."));
        return false;
    }
    const std::optional<Report> report = read(asked);
    if (!report)
        return false;
    show(*report, asked.group);
    kor::enterFocusedField(this); // the clerk goes on in the value that they were in
    return true;
}

std::optional<Report> ReportWindow::read(const ReportQuestion &question)
{
    Progress progress(this, title, QStringLiteral("Przygotowanie zestawienia..."));
    try {
        return readReport(m_store.connection(), question,
                          [&](qint64 done, qint64 all) { return progress.goesOn(done, all); });
    } catch (const StoreError &error) {
        progress.end();
        warn(this, QStringLiteral("Baza danych"), error.text());
    }
    return std::nullopt;
}

void ReportWindow::show(const Report &report, ReportGroup by)
{
    m_report = report;
    m_heading = {QStringLiteral("Sprzedaż: %1").arg(nameOf(by).toLower()), parameterTexts()};
    m_rows->setTextControl(0, Name, nameOf(by));
    m_rows->setRows(1); // the texts of the last report go
    m_rows->setRows(static_cast<int>(report.rows.size()) + 1);
    QList<Bar> bars;
    int at = 0;
    for (const ReportRow &row : report.rows) {
        const QString amount = amountText(row.total);
        ++at;
        m_rows->setTextControl(at, Number, QString::number(at));
        m_rows->setTextMatrix(at, Name, row.name);
        m_rows->setTextMatrix(at, Orders, countText(row.orders));
        m_rows->setTextMatrix(at, Amount, amount);
        m_rows->setTextMatrix(at, Share, shareText(row.total, report.total));
        bars.append({row.name, static_cast<double>(row.total), amount});
    }
    m_chart->setBars(bars);
    m_total->setText(report.rows.isEmpty() ? QStringLiteral("Nie ma takich zamówień.") : totalText(report));
    m_pdf->setEnabled(!report.rows.isEmpty());
    m_export->setEnabled(canSaveGrids() && !report.rows.isEmpty());
}

void ReportWindow::askForPdf()
{
    const QString fileName = askForFile(this, QStringLiteral("Zapisz zestawienie"), QStringLiteral("sprzedaz.pdf"),
                                        {QStringLiteral("Dokument PDF (*.pdf)")});
    if (!fileName.isEmpty())
        savePdf(fileName);
}

bool ReportWindow::savePdf(const QString &fileName)
{
    if (!saveFile(this, title, fileName, reportPdf(m_heading, m_report)))
        return false;
    m_total->setText(QStringLiteral("Zapisano plik %1.").arg(fileName));
    return true;
}

void ReportWindow::exportRows()
{
    const QHash<int, QVariant> totals{{Name, QStringLiteral("Razem")},
                                      {Orders, static_cast<double>(m_report.orders)},
                                      {Amount, static_cast<double>(m_report.total) / grosze}};
    const QString said = askAndSaveGrid(this, *m_rows, {m_heading.title, QStringLiteral("sprzedaz"), totals});
    if (!said.isEmpty())
        m_total->setText(said);
}

} // namespace orders
