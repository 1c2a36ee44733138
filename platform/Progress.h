// How long work tells that it gets on, without knowing who shows it.

#pragma once

#include <QtGlobal>

#include <functional>

namespace tomely {

/// Called from time to time with how much is done of how much, in a unit of the caller's own. May
/// throw OperationCancelled where the caller's documentation says that the work can be left.
using Progress = std::function<void(qint64 done, qint64 total)>;

/// One half of a piece of work that has two: `progress` is told of the first or second half of it.
Progress halfOf(const Progress& progress, int half);

/// What leaving a piece of work by its Cancel button throws.
struct OperationCancelled { };

} // namespace tomely
