#include "janelas/gravar_copia.h"

#include "comum/arquivos_de_dados.h"
#include "comum/plataforma.h"

#include <QFileInfo>

void gravarCópia(const std::string& caminho, std::string_view bytes) {
    const QFileInfo arquivo{QString::fromStdString(caminho)};
    if (arquivo.exists() && !varenta::plataforma::perguntar("O arquivo " + arquivo.fileName().toStdString() +
                                                            " já existe. Deseja substituí-lo?"))
        return;
    varenta::gravarArquivoDeDados(caminho, bytes, "O arquivo não pôde ser salvo: ", "!");
}
