// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "frame/formloader.h"

#include <KorDaoUC/lateboundwidget.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QMetaProperty>
#include <QtCore/QPointer>

namespace kor {

namespace {

Q_LOGGING_CATEGORY(formsLog, "kordaouc.forms", QtInfoMsg)

constexpr int handled = -1;

void warnOfRefusal(const QObject &control, int property, const RunTimeError &error)
{
    const QMetaObject *type = control.metaObject();
    qCWarning(formsLog).noquote() << QStringLiteral("%1 %2, %3: error %4; the value stays as it was")
                                         .arg(QLatin1String(type->className()), control.objectName(),
                                              QLatin1String(type->property(property).name()),
                                              QString::fromUtf8(error.what()));
}

} // namespace

// The call comes here first, through the classes of the control, each of which then takes its own members. A write is
// sent round once more, so that all of it happens inside.
int LateBoundWidget::qt_metacall(QMetaObject::Call call, int member, void **arguments)
{
    static thread_local const LateBoundWidget *written = nullptr;
    if (call != QMetaObject::WriteProperty || written == this || member < QWidget::staticMetaObject.propertyCount()) {
        written = nullptr; // what this write leads to is another call
        return QWidget::qt_metacall(call, member, arguments);
    }
    const QPointer<LateBoundWidget> self = this; // a handler may end the control
    written = this;
    try {
        this->qt_metacall(call, member, arguments);
    } catch (const RunTimeError &error) {
        if (!self || !isFormLoaderSettingProperty())
            throw;
        warnOfRefusal(*this, member, error);
    }
    return handled;
}

} // namespace kor
