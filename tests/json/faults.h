// Failures in the middle of a list.
#pragma once

#include <functional>
#include <string>

#include "support/recorder.h"

namespace faults {

/// Deletes a database and puts a directory in its place: it cannot be opened any more.
void make_unopenable(const char *database);

/// Does something before the n-th call that notes a line, counted from 1.
void before(support::Recorder &recorder, const std::string &line, int n, const std::function<void()> &action);

}  // namespace faults
