#include "lookup/ItemEncontrado.h"

#include "base/Numbers.h"
#include "frame/CamposNumericos.h"

namespace lookup {

ItemEncontrado ProdutoDe(const base::RecordSet& registro, std::string_view unidade) {
  const auto texto = [&](std::string_view campo) { return base::ToText(registro.Fields(campo)); };
  return {.tipo = servicos::kProduto,
          .codigo = texto("CodigoInterno"),
          .codigoDeBarras = texto("CodigoDeBarras"),
          .nome = texto("Nome"),
          .unidade = texto(unidade),
          .custo = texto("ValorDeCusto"),
          .valorDeVenda = frame::TextoDeValor(registro.Fields("ValorDeVenda")),
          .percentualDeComissao = base::ToCurrency(registro.Fields("PercentualDeComissao"))};
}

ItemEncontrado ServicoDe(const base::RecordSet& registro) {
  const auto texto = [&](std::string_view campo) { return base::ToText(registro.Fields(campo)); };
  return {.tipo = servicos::kServico,
          .codigo = texto("Codigo"),
          .nome = texto("Nome"),
          .custo = texto("Custo"),
          .valorDeVenda = frame::TextoDeValor(registro.Fields("ValorDeVenda")),
          .tipoDeServico = base::ToInt32(registro.Fields("NumeroDoTipoDeServico"))};
}

}  // namespace lookup
