#pragma once

#include "history/history_sample.h"

#include <optional>
#include <string>
#include <vector>

/// The content of history.json: a compact JSON array with one object a sample,
/// {"date":"2026-11-16T03:53:12Z","cpu":12.5,"mem":48.25,"cpuTemp":51}. Numbers are written in the shortest
/// form that reads back as the same value; "cpuTemp" is left out when the temperature is absent.
namespace tarvo {

/// Appends one sample's object. False, and the text unchanged, when one of its numbers is not finite.
bool appendHistorySample(std::string& json, const HistorySample& sample);

/// Reads a whole file. Keys may come in any order, unknown ones are passed over, "cpuTemp" may be null or
/// missing; absent for anything else: what is no such array, a missing key, another type, a date that
/// parseISO8601 refuses. The text is not copied where it has 64 bytes of capacity to spare.
std::optional<std::vector<HistorySample>> parseHistory(const std::string& json);

} // namespace tarvo
