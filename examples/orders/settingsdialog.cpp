// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "settingsdialog.h"

#include "colorchoice.h"
#include "focusmark.h"
#include "messages.h"
#include "savedfile.h"
#include "vatrates.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorUpDown>

#include <QtGui/QShortcut>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace orders {

namespace {

const QString title = QStringLiteral("Ustawienia");

KorCombo *listOf(const QString &entries)
{
    auto *list = new KorCombo;
    list->setSQL(entries);
    list->Refresh();
    return list;
}

} // namespace

SettingsDialog::SettingsDialog(const Preferences &preferences, QWidget *parent)
    : QDialog(parent),
      m_seller(new KorMultiText),
      m_terms(listOf(termsToChoose())),
      m_days(new KorUpDown),
      m_vat(listOf(vatRatesToChoose())),
      m_color(new KorColor),
      m_folder(new KorClick)
{
    constexpr int longestSeller = 400;
    setWindowTitle(title);
    m_seller->setMaxLength(longestSeller);
    m_seller->setOpenLines(6);
    m_days->setMax(Preferences::mostDays);
    m_days->setMaxLength(2);
    m_folder->setLocked(true);
    m_folder->findChild<QWidget *>(QStringLiteral("cmdClick"))->setFocusPolicy(Qt::ClickFocus); // F4 is its key

    auto *fields = new QFormLayout;
    fields->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addField(fields, QStringLiteral("&Sprzedawca na wydrukach:"), m_seller, QStringLiteral("txtSeller"));
    addField(fields, QStringLiteral("&Płatność nowych zamówień:"), m_terms, QStringLiteral("cmbTerms"));
    addField(fields, QStringLiteral("&Dostawa nowych zamówień po:"), m_days, QStringLiteral("spnDays"),
             QStringLiteral("dniach (0: bez terminu)"));
    addField(fields, QStringLiteral("&VAT nowych towarów:"), m_vat, QStringLiteral("cmbVat"));
    addField(fields, QStringLiteral("&Kolor niezapisanych zmian:"), m_color, QStringLiteral("clrUnsaved"),
             QStringLiteral("za numerem zamówienia"));
    addField(fields, QStringLiteral("&Folder na pliki:"), m_folder, QStringLiteral("clkFolder"));

    auto *buttons = new QDialogButtonBox;
    auto *save = buttons->addButton(QStringLiteral("&Zapisz"), QDialogButtonBox::AcceptRole);
    save->setDefault(true);
    save->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
    buttons->addButton(QStringLiteral("&Anuluj"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addWidget(buttons);
    resize(40 * fontMetrics().height(), sizeHint().height());
    new FocusMark(this);
    new QShortcut(Qt::CTRL | Qt::Key_S, this, [this] { accept(); });

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_folder, &KorClick::Click, this, &SettingsDialog::chooseFolder);
    fill(preferences);
    m_given = preferences;
    m_unchanged = this->preferences();
    m_seller->setFocus();
}

void SettingsDialog::addField(QFormLayout *layout, const QString &label, QWidget *field, const QString &name,
                              const QString &unit)
{
    field->setObjectName(name);
    auto *caption = new QLabel(label);
    caption->setBuddy(field);
    if (unit.isEmpty()) {
        layout->addRow(caption, field);
        return;
    }
    auto *row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(new QLabel(unit), 1);
    layout->addRow(caption, row);
}

void SettingsDialog::fill(const Preferences &preferences)
{
    m_seller->setText(preferences.seller);
    m_terms->setValue(preferences.paymentTerms);
    m_days->setText(kor::CStr(preferences.deliveryDays));
    m_vat->setValue(preferences.vat);
    m_color->setValue(preferences.unsavedColor.value_or(noColor));
    m_folder->setText(preferences.folder);
}

Preferences SettingsDialog::preferences() const
{
    Preferences read;
    read.seller = m_seller->Text();
    read.paymentTerms = kor::CStr(m_terms->Value());
    read.deliveryDays = m_days->Value();
    read.vat = kor::CLng(m_vat->Value());
    read.unsavedColor = colorIn(*m_color);
    if (read.unsavedColor == m_unchanged.unsavedColor) // one that is not in the list can't be shown
        read.unsavedColor = m_given.unsavedColor;
    read.folder = m_folder->Text();
    return read;
}

void SettingsDialog::chooseFolder()
{
    const QString folder = askForFolder(this, QStringLiteral("Folder na pliki"), m_folder->Text());
    if (!folder.isEmpty())
        m_folder->setText(folder);
    kor::enterFocusedField(this);
}

void SettingsDialog::accept()
{
    if (kor::leaveFocusedField(this))
        QDialog::accept();
}

void SettingsDialog::reject()
{
    if (preferences() == m_unchanged) {
        QDialog::reject();
        return;
    }
    switch (askAboutChanges(this, title)) {
    case Changes::Save: accept(); break;
    case Changes::Discard: QDialog::reject(); break;
    case Changes::Keep: break;
    }
}

} // namespace orders
