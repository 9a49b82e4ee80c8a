#include "comum/ampulheta.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"

namespace varenta::teste {
namespace {

using Mostradas = std::vector<bool>;

using ComAmpulheta = ComTelaDeTeste;

TEST_F(ComAmpulheta, ApareceLogoESomeNoFimDoTrabalho) {
    {
        const Ampulheta ampulheta{telaDeTeste};
        EXPECT_EQ(ampulhetas, Mostradas{true});
        EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::ampulheta);
    }
    EXPECT_EQ(ampulhetas, (Mostradas{true, false}));
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::padrão);
}

TEST_F(ComAmpulheta, SomeTambémQuandoUmErroTerminaOTrabalho) {
    EXPECT_EQ(erroDe([] {
                  const Ampulheta ampulheta{telaDeTeste};
                  throw ErroExecucao{estouro};
              }),
              estouro);
    EXPECT_EQ(ampulhetas, (Mostradas{true, false}));
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::padrão);
}

} // namespace
} // namespace varenta::teste
