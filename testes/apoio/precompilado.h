/// What most tests include, compiled once (see `src/precompilado.h`).
#pragma once

#include "precompilado.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>
