/// Headers of the standard library that most files include, compiled once. Every file goes on including what
/// it uses: CMAKE_DISABLE_PRECOMPILE_HEADERS=ON builds without this one.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>
