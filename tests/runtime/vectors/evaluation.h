// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "vectorfile.h"

//! What became of one vector.
struct Outcome {
    enum class Kind { Passed, Failed, Skipped };
    Kind kind = Kind::Failed;
    QString got; //!< the text that was compared, or the function that is not there
};

//! Runs the function that the vector is about and compares, each kind of result at its own precision.
[[nodiscard]] Outcome evaluate(const QString &fileName, const Vector &vector);
