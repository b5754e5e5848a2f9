// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/form.h"

#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>

#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <functional>
#include <numeric>

namespace kor::test {

namespace {

constexpr int columns = 3;
constexpr int placeWidth = 200;
constexpr int placeHeight = 70;
constexpr int surfaceHeight = 190; // of what has cells to edit, and the whole width

//! Places for all controls below each other, the fields in three columns.
QList<QRect> placesOf(const QStringList &names)
{
    QList<QRect> places;
    int top = 0;
    int column = 0;
    for (const QString &name : names) {
        const std::unique_ptr<UserControl> control(ControlRegistry::create(name));
        const bool isSurface = CellWatch::isFor(control.get());
        if (column == columns || (isSurface && column > 0)) {
            column = 0;
            top += placeHeight;
        }
        if (isSurface) {
            places << QRect(10, top + 5, columns * placeWidth - 20, surfaceHeight - 10);
            top += surfaceHeight;
        } else {
            places << QRect(column++ * placeWidth + 10, top + 5, placeWidth - 20, placeHeight - 44);
        }
    }
    return places;
}

} // namespace

void Place::remember()
{
    (void)handlers->take(QStringLiteral("Change"));
    text = control->property("Text").value<QString>();
    value = control->property("Value");
    const bool wasLocked = isLocked;
    isLocked = control->metaObject()->indexOfProperty("Locked") >= 0 && control->property("Locked").value<bool>();
    isTypedInto = isTypedInto || (!isLocked && control->focusProxy() && control->focusProxy()->hasFocus());
    isEnteredLocked = isLocked && (wasLocked ? isEnteredLocked : !isTypedInto);
    if (cells)
        cells->remember();
}

Form::Form() : m_panel(new QWidget(this))
{
    const QStringList names = ControlRegistry::names();
    m_rects = placesOf(names);
    const int half = std::accumulate(m_rects.cbegin(), m_rects.cend(), QRect(), std::bit_or<>()).bottom() + 40;
    resize(columns * placeWidth + 20, 2 * half + 60);
    m_panel->setGeometry(0, half, columns * placeWidth, half);
    m_places.resize(2 * static_cast<std::size_t>(names.size()));
    for (std::size_t place = 0; place < m_places.size(); ++place) {
        m_places[place].name = names.at(static_cast<qsizetype>(place) % names.size());
        fill(place);
    }
    auto *line = new QLineEdit(this);
    line->setGeometry(10, 2 * half + 10, 120, 26);
    auto *button = new QPushButton(QStringLiteral("Dalej"), this);
    button->setGeometry(140, 2 * half + 10, 120, 26);
}

Place &Form::at(int control)
{
    std::vector<Place *> named;
    for (Place &place : m_places) {
        if (m_only.isEmpty() || place.name == m_only)
            named.push_back(&place);
    }
    return *named.at(static_cast<std::size_t>(control) % named.size());
}

Form::~Form()
{
    for (const Place &place : m_places)
        delete place.control;
}

void Form::fill(std::size_t place)
{
    Place &here = m_places[place];
    const std::size_t half = m_places.size() / 2;
    const int index = static_cast<int>(place % half);
    here.control = ControlRegistry::create(here.name, place < half ? static_cast<QWidget *>(this) : m_panel);
    here.control->setGeometry(m_rects.at(index));
    here.handlers = std::make_unique<Handlers>(here.control);
    here.isLoose = here.isTypedInto = here.isLocked = false;
    const MoodyDatabase::Mood mood = m_database.mood();
    m_database.setMood(MoodyDatabase::Answers); // the new control is filled
    if (here.control->metaObject()->indexOfMethod("setdatabase(QObject*)") >= 0)
        QMetaObject::invokeMethod(here.control, "setdatabase", Q_ARG(QObject *, &m_database));
    if (here.control->metaObject()->indexOfProperty("SQL") >= 0) {
        here.control->setProperty("SQL", index % 2 ? QStringLiteral("SELECT k, n FROM t")
                                                   : QStringLiteral("LIST 1;Tak|0;Nie|2;Może"));
        here.control->Refresh();
    }
    here.cells.reset();
    if (CellWatch::isFor(here.control)) {
        CellWatch::furnish(here.control);
        here.cells.emplace(here.control);
    }
    m_database.setMood(mood);
    here.control->show();
    here.remember();
}

void Form::mend()
{
    for (std::size_t place = 0; place < m_places.size(); ++place) {
        if (!m_places[place].control)
            fill(place);
    }
    show();
    takeActivity();
}

void Form::takeActivity()
{
    if (isVisible() && !isActiveWindow() && !QApplication::activePopupWidget() && !QApplication::activeModalWidget()) {
        activateWindow();
        settle();
        QApplication::setActiveWindow(this); // which the platform takes for done after the form itself was hidden
    }
}

} // namespace kor::test
