#include "lookup/ClienteEncontrado.h"

#include <string_view>

#include "base/Numbers.h"
#include "base/Text.h"
#include "lookup/PesquisaDeCliente.h"

namespace lookup {
namespace {

struct CampoDaCategoria {
  servicos::TipoDeServico tipo;
  std::string_view campo;
};
constexpr std::array<CampoDaCategoria, 8> kCategorias{
    {{servicos::kClinico, "PercentualDeDescontoEmClinicos"},
     {servicos::kCirurgiaSimples, "PercentualDeDescontoEmCirurgiaSimples"},
     {servicos::kCirurgiaMedia, "PercentualDeDescontoEmCirurgiaMedia"},
     {servicos::kCirurgiaComplexa, "PercentualDeDescontoEmCirurgiaComplexa"},
     {servicos::kBanhosTosasEEsteticas, "PercentualDeDescontoEmBanhosTosasEEsteticas"},
     {servicos::kHospedagem, "PercentualDeDescontoEmHospedagens"},
     {servicos::kAdestramento, "PercentualDeDescontoEmAdestramentos"},
     {servicos::kOutros, "PercentualDeDescontoEmOutros"}}};

PerfilDeDescontos PerfilDe(const base::RecordSet& registro) {
  PerfilDeDescontos perfil;
  perfil.descontoUnico = base::Upper(base::ToText(registro.Fields("DescontoUnico"))) == "SIM";
  perfil.percentualUnico = base::ToInt32(registro.Fields("PercentualUnicoDeDescontos"));
  for (std::size_t i = 0; i < kCategorias.size(); ++i) {
    perfil.categorias[i] = {kCategorias[i].tipo,
                            base::ToInt32(registro.Fields(kCategorias[i].campo))};
  }
  return perfil;
}

}  // namespace

std::optional<std::int32_t> PerfilDeDescontos::Para(std::int32_t tipoDeServico) const {
  if (descontoUnico) return percentualUnico;
  for (const Categoria& categoria : categorias) {
    if (categoria.tipoDeServico == tipoDeServico) return categoria.percentual;
  }
  return std::nullopt;
}

ClienteEncontrado ClienteDe(const base::RecordSet& registro) {
  const auto texto = [&](std::string_view campo) { return base::ToText(registro.Fields(campo)); };
  return {.codigo = texto("CodigoDoCliente"),
          .apelido = texto("ApelidoOuNomeFantasia"),
          .nome = texto("NomeOuRazaoSocial"),
          .cpfCnpj = texto("CPFCNPJ"),
          .sufixoDoRotulo = SufixoDoRotulo(texto("VIP"), texto("CategoriaDaCurvaABC")),
          .endereco = texto("EnderecoCompleto"),
          .canalDeComunicacao = texto("TiposECanaisDeComunicacao"),
          .descontos = PerfilDe(registro)};
}

}  // namespace lookup
