// Tables of cases.
#pragma once

#include <tuple>
#include <vector>

// A loop names the columns: for (const auto& [name, size] : rows).
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;
