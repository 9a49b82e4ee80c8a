/// What most tests of the windows include, compiled once (see `src/precompilado.h`).
#pragma once

#include "apoio/precompilado.h"
#include "janelas/precompilado_janelas.h"

#include <QHeaderView>
#include <QTest>
#include <QTimer>
