#include "janelas/aplicacao.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // Without a display of its own choice the tests use none.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    Aplicacao aplicação{argc, argv};
    return RUN_ALL_TESTS();
}
