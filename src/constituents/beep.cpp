// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/beep.h>

#include <QtWidgets/QApplication>

#include <utility>

namespace kor {

namespace {

std::function<void()> &handlerInUse()
{
    static std::function<void()> handler;
    return handler;
}

} // namespace

void beep()
{
    if (const auto handler = handlerInUse())
        handler();
    else
        QApplication::beep();
}

void setBeepHandler(std::function<void()> handler) { handlerInUse() = std::move(handler); }

} // namespace kor
