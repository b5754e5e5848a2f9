// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "frame/formloader.h"

#include <QtCore/QObject>

#if __has_include(<dlfcn.h>) && __has_include(<execinfo.h>)
#  include <array>
#  include <dlfcn.h>
#  include <execinfo.h>
#  include <optional>
#  include <string_view>

namespace kor {

namespace {

std::optional<Dl_info> moduleOf(const void *address)
{
    Dl_info info{};
    return dladdr(address, &info) != 0 ? std::optional(info) : std::nullopt;
}

bool contains(const char *text, std::string_view part)
{
    return text && std::string_view(text).find(part) != std::string_view::npos;
}

//! The loader is a library of its own; the one inside the form designer's library is known by its class, for the
//! designer's other parts bear exceptions.
bool isFormLoader(const Dl_info &caller)
{
    return contains(caller.dli_fname, "Qt6UiTools") ||
           (contains(caller.dli_fname, "Qt6Designer") && contains(caller.dli_sname, "FormBuilder"));
}

} // namespace

bool isFormLoaderSettingProperty()
{
    const std::optional<Dl_info> own = moduleOf(reinterpret_cast<const void *>(&isFormLoaderSettingProperty));
    const std::optional<Dl_info> core = moduleOf(&QObject::staticMetaObject);
    if (!own || !core)
        return false;
    std::array<void *, 64> callers{};
    const int count = backtrace(callers.data(), static_cast<int>(callers.size()));
    // What comes before this library belongs to the tracing: a program under a sanitizer does it in its own name.
    bool isPastTracing = false;
    for (int i = 0; i < count; ++i) {
        const std::optional<Dl_info> caller = moduleOf(callers.at(static_cast<std::size_t>(i)));
        if (!caller)
            return false;
        const bool isOwn = caller->dli_fbase == own->dli_fbase;
        isPastTracing = isPastTracing || isOwn;
        if (isPastTracing && !isOwn && caller->dli_fbase != core->dli_fbase)
            return isFormLoader(*caller); // whoever called the toolkit's core to set the property
    }
    return false;
}

} // namespace kor
#else
namespace kor {

bool isFormLoaderSettingProperty() { return false; }

} // namespace kor
#endif
