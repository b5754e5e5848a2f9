// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "places.h"

#include <KorDaoUC/KorGrid>

#include <QtCore/QFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

namespace orders {

namespace {

constexpr int narrowest = 20; // pixels
constexpr int widest = 2000;

const QString placeKey = QStringLiteral("%1/place");
const QString maximizedKey = QStringLiteral("%1/maximized");
const QString columnWidth = QStringLiteral("%1/%2/%3");

//! A title as a key: a slash would begin a group.
QString keyOf(const KorGrid &grid, const QString &window, int column)
{
    QString title = grid.TextMatrix(0, column);
    return columnWidth.arg(window, grid.objectName(), title.replace(u'/', u'-').replace(u'\\', u'-'));
}

QHeaderView *titlesOf(const KorGrid &grid)
{
    return grid.findChild<QTableView *>(QStringLiteral("grid"))->horizontalHeader();
}

std::unique_ptr<QSettings> settingsIn(const QString &fileName)
{
    return std::make_unique<QSettings>(fileName, QSettings::IniFormat);
}

} // namespace

QRect placeOnScreens(const QRect &wanted, const QList<QRect> &screens)
{
    const auto shared = [&wanted](const QRect &screen) {
        const QRect both = wanted & screen;
        return qint64(both.width()) * both.height();
    };
    const auto screen = std::max_element(screens.begin(), screens.end(), [&](const QRect &left, const QRect &right) {
        return shared(left) < shared(right);
    });
    if (screen == screens.end())
        return wanted;
    QRect place(wanted.topLeft(), wanted.size().boundedTo(screen->size()));
    place.moveLeft(std::clamp(place.left(), screen->left(), screen->right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), screen->top(), screen->bottom() - place.height() + 1));
    return place;
}

Places::Places(const QString &fileName) : m_settings(settingsIn(fileName))
{
    (void)m_settings->allKeys(); // which reads it
    if (m_settings->status() == QSettings::FormatError) {
        m_settings.reset();
        const QString aside = fileName + QStringLiteral(".popsuty");
        QFile::remove(aside);
        const bool isAside = QFile::rename(fileName, aside);
        m_settings = settingsIn(fileName);
        m_complaint =
            isAside ? QStringLiteral("Pliku z układem okien i ustawieniami nie da się odczytać; odłożono go jako %1.")
                          .arg(aside)
                    : QStringLiteral("Pliku z układem okien i ustawieniami nie da się odczytać: %1").arg(fileName);
    } else if (!m_settings->isWritable()) {
        m_complaint =
            QStringLiteral("Układ okien i ustawienia nie zostaną zapamiętane: nie wolno pisać do %1.").arg(fileName);
    }
}

void Places::restore(QWidget &window, const QString &name)
{
    QList<QRect> screens{QGuiApplication::primaryScreen()->availableGeometry()};
    for (const QScreen *screen : QGuiApplication::screens())
        screens << screen->availableGeometry();
    if (const QRect stood = m_settings->value(placeKey.arg(name)).toRect(); stood.isValid()) {
        const QRect place = placeOnScreens(stood, screens);
        window.resize(place.size());
        window.move(place.topLeft());
    }
    if (m_settings->value(maximizedKey.arg(name)).toBool())
        window.setWindowState(Qt::WindowMaximized);
    for (const KorGrid *grid : window.findChildren<KorGrid *>())
        restoreColumns(*grid, name);
}

void Places::restoreColumns(const KorGrid &grid, const QString &name)
{
    QHeaderView *titles = titlesOf(grid);
    for (int column = 1; column < grid.Cols(); ++column) {
        bool isNumber = false;
        const int width = m_settings->value(keyOf(grid, name, column)).toInt(&isNumber);
        if (isNumber && grid.columnDescription(column).col_width > 0)
            titles->resizeSection(column - 1, std::clamp(width, narrowest, widest));
    }
}

void Places::keep(const QWidget &window, const QString &name)
{
    // With the place of its frame, which is what a window is moved to.
    const QPoint frame = window.geometry().topLeft() - window.pos();
    const QRect inside = window.isMaximized() ? window.normalGeometry() : window.geometry();
    m_settings->setValue(placeKey.arg(name), inside.translated(-frame));
    m_settings->setValue(maximizedKey.arg(name), window.isMaximized());
    for (const KorGrid *grid : window.findChildren<KorGrid *>())
        keepColumns(*grid, name);
    m_settings->sync();
}

void Places::keepColumns(const KorGrid &grid, const QString &name)
{
    const QHeaderView *titles = titlesOf(grid);
    for (int column = 1; column < grid.Cols(); ++column) {
        if (grid.columnDescription(column).col_width > 0)
            m_settings->setValue(keyOf(grid, name, column), titles->sectionSize(column - 1));
    }
}

Preferences Places::preferences() const { return preferencesIn(*m_settings); }

bool Places::keep(const Preferences &preferences)
{
    keepPreferences(*m_settings, preferences);
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

QMap<QString, QString> Places::texts(const QString &name) const
{
    QMap<QString, QString> texts;
    m_settings->beginGroup(name);
    for (const QString &key : m_settings->childKeys())
        texts.insert(key, m_settings->value(key).toString());
    m_settings->endGroup();
    return texts;
}

void Places::keepTexts(const QString &name, const QMap<QString, QString> &texts)
{
    m_settings->remove(name); // the limits of another day
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        m_settings->setValue(name + u'/' + text.key(), text.value());
    m_settings->sync();
}

Visit::Visit(Places *places, QWidget &window, QString name)
    : m_places(places), m_window(window), m_name(std::move(name))
{
    if (m_places)
        m_places->restore(m_window, m_name);
}

Visit::~Visit()
{
    if (m_places)
        m_places->keep(m_window, m_name);
}

} // namespace orders
