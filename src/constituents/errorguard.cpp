// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"

#include "constituents/messagebox.h"

#include <KorDaoUC/errorhandler.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <utility>

namespace kor {

namespace {

using Handler = std::function<void(QObject *, const RunTimeError &)>;

Handler &handlerInUse()
{
    static Handler handler;
    return handler;
}

void showError(QObject *source, const RunTimeError &error)
{
    exclaim(qobject_cast<QWidget *>(source), QStringLiteral("%1: %2").arg(error.number()).arg(error.description()),
            QApplication::applicationDisplayName());
}

} // namespace

void setUnhandledErrorHandler(Handler handler) { handlerInUse() = std::move(handler); }

void reportError(QObject *source, const RunTimeError &error)
{
    for (QObject *place = source; place; place = place->parent()) {
        const QMetaObject *type = place->metaObject();
        const int event = type->indexOfSignal("Error(int&,QString&,bool&)");
        if (event < 0)
            continue;
        int number = error.number();
        QString description = error.description();
        bool handled = false;
        type->method(event).invoke(place, Qt::DirectConnection, Q_ARG(int &, number), Q_ARG(QString &, description),
                                   Q_ARG(bool &, handled));
        if (handled)
            return;
        break;
    }
    if (const Handler handler = handlerInUse())
        handler(source, error);
    else
        showError(source, error);
}

} // namespace kor
