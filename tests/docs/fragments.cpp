// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// Compiles what the pages show of programs that they don't show whole: each block of code stands here among the things
// that its page takes for granted. It is compiled with a reader's settings, and never run.
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/GridExport>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/MdbFile>
#include <KorDaoUC/PropertyPage>
#include <KorDaoUC/SqlDatabase>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtCore/QDebug>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

struct Record {
    QVariant country;
};

class Window : public QWidget
{
public:
    void save();
    void loadLate();
    void setPages(KorNumber *price, KorNumber *amount, QPushButton *applyButton);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Record record() const;
    void store(const Record &record);

    QTabWidget *m_tabs;
};

#include "commands-1.inc"
#include "commands-2.inc"

void Window::loadLate()
{
    QWidget &window = *this;
#include "latebinding-1.inc"
}

void addColumnLate(QObject *grid, int number, QString type, QString title, int width, int align, bool lock,
                   QString format, int color, int length, QString sql, QString slownik, int valueColumn, bool wrap)
{
#include "latebinding-2.inc"
}

void Window::setPages(KorNumber *price, KorNumber *amount, QPushButton *applyButton)
{
    QWidget &window = *this;
#include "pages-1.inc"
}

class Grid : public QWidget
{
#include "pages-2.inc"
};

void keepKey(KorCombo *combo, Window *window, Record record)
{
#include "korcombo-1.inc"
}

void addColumns(KorGrid *grid)
{
#include "korgrid-1.inc"
}

void paste(KorGrid *grid, bool (*mayPasteTheOthers)(const QList<kor::RefusedCell> &))
{
#include "korgrid-2.inc"
}

void ask(KorParam *sheet, kor::Database *database, QSqlQuery query)
{
#include "korparam-1.inc"
}

void readOldFile(QSqlDatabase connection, const QString &fileName, KorCombo &customer,
                 bool (*showProgress)(const QString &, qint64, qint64))
{
#include "databases-1.inc"
}

struct Progress {
    bool goesOn(qint64 done, qint64 all);
};

void exportLines(KorGrid *grid, const QString &fileName, Progress progress)
{
#include "export-1.inc"
}

void openForm(void (*refuse)(int line, const QString &reason))
{
#include "forms-1.inc"
}
