// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/colorchooser.h"

#include <QtGui/QIcon>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include <array>
#include <limits>

namespace kor {

namespace {

// In the order of their numbers.
constexpr std::array systemNames{
    u"Pasek przewijania",
    u"Pulpit",
    u"Pasek tytułu okna aktywnego",
    u"Pasek tytułu okna nieaktywnego",
    u"Menu",
    u"Tło okna",
    u"Ramka okna",
    u"Tekst menu",
    u"Tekst okna",
    u"Tekst paska tytułu",
    u"Krawędź okna aktywnego",
    u"Krawędź okna nieaktywnego",
    u"Obszar roboczy programu",
    u"Wyróżnienie",
    u"Tekst wyróżniony",
    u"Przycisk",
    u"Cień przycisku",
    u"Tekst niedostępny",
    u"Tekst przycisku",
    u"Tekst paska tytułu okna nieaktywnego",
    u"Rozświetlenie przycisku",
    u"Ciemny cień trójwymiarowy",
    u"Jasny odcień trójwymiarowy",
    u"Tekst podpowiedzi",
    u"Tło podpowiedzi",
};

constexpr OLE_COLOR systemColor(int number) { return std::numeric_limits<OLE_COLOR>::min() + number; }

//! The number of a system colour that has a name.
std::optional<int> numberOf(OLE_COLOR color)
{
    const int number = color & 0xFF;
    const bool isNamed = number < static_cast<int>(systemNames.size()) && color == systemColor(number);
    return isNamed ? std::optional(number) : std::nullopt;
}

} // namespace

QString colorName(OLE_COLOR color)
{
    if (const auto number = numberOf(color))
        return QString::fromUtf16(systemNames.at(static_cast<std::size_t>(*number)));
    if (isSystemColor(color))
        return QStringLiteral("&H%1").arg(static_cast<uint>(color), 8, 16, QLatin1Char('0')).toUpper();
    return toQColor(color, QPalette()).name().toUpper();
}

QIcon colorPicture(OLE_COLOR color, const QWidget &widget)
{
    const int height = widget.fontMetrics().height();
    QPixmap picture(QSize(2 * height, height) * widget.devicePixelRatioF());
    picture.setDevicePixelRatio(widget.devicePixelRatioF());
    picture.fill(toQColor(color, widget.palette()));
    QPainter painter(&picture);
    QColor edge = widget.palette().color(QPalette::WindowText); // which every theme sets off from its grounds
    edge.setAlphaF(0.5F);
    painter.setPen(edge);
    painter.drawRect(QRectF(0.5, 0.5, 2 * height - 1, height - 1));
    painter.end();
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected); // the colour itself, also in the row that is selected
    return icon;
}

ColorChooser::ColorChooser(OLE_COLOR color, QWidget *parent)
    : QDialog(parent), m_pages(new QTabWidget(this)), m_system(new QListWidget), m_others(new QColorDialog)
{
    setWindowTitle(QStringLiteral("Kolor"));
    m_system->setObjectName(QStringLiteral("lstSystem"));
    m_system->setIconSize(QSize(2, 1) * fontMetrics().height());
    for (int number = 0; number < static_cast<int>(systemNames.size()); ++number)
        new QListWidgetItem(colorPicture(systemColor(number), *this), colorName(systemColor(number)), m_system);
    m_others->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    m_others->setWindowFlags(Qt::Widget);
    m_others->setCurrentColor(toQColor(color, palette()));
    m_pages->addTab(m_system, QStringLiteral("Kolory systemowe"));
    m_pages->addTab(m_others, QStringLiteral("Inne kolory"));
    if (const auto number = numberOf(color))
        m_system->setCurrentRow(*number);
    else
        m_pages->setCurrentWidget(m_others);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true); // the other dialog has one, too
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Anuluj"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_system, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    m_others->installEventFilter(this);
    connect(m_others, &QDialog::rejected, this, &QDialog::reject);
}

//! Enter in a dialog within this one would end there.
bool ColorChooser::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            accept();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

std::optional<OLE_COLOR> ColorChooser::color() const
{
    if (m_pages->currentWidget() == m_others)
        return fromQColor(m_others->currentColor());
    const int number = m_system->currentRow();
    return number >= 0 ? std::optional(systemColor(number)) : std::nullopt;
}

} // namespace kor
