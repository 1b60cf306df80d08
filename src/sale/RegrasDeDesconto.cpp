#include "sale/RegrasDeDesconto.h"

#include <string_view>

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/Desktop.h"

namespace sale {

using servicos::TipoDeLancamento;

namespace {

enum class Periodo { kNenhum, kDentro, kFora };

bool EhDataValida(const base::Value& valor) {
  return valor.Is<base::DateTime>() || base::IsDate(base::ToText(valor));
}

/// Where today lies; both days of the period belong to it. Without two dates there is none.
Periodo PeriodoDe(const base::RecordSet& empresa, std::string_view inicio, std::string_view fim) {
  const base::Value& de = empresa.Fields(inicio);
  const base::Value& ate = empresa.Fields(fim);
  if (!EhDataValida(de) || !EhDataValida(ate)) return Periodo::kNenhum;
  const base::DateTime hoje = platform::Desktop::Current().Now().Date();
  const bool dentro = hoje >= base::ToDate(de).Date() && hoje <= base::ToDate(ate).Date();
  return dentro ? Periodo::kDentro : Periodo::kFora;
}

}  // namespace

void RegrasDeDesconto::AtualizarLimite(const base::RecordSet& empresa) {
  const base::Value& limite = empresa.Fields("PercDeDescontoLimiteDaVendaNoCaixa");
  if (!base::IsNull(limite)) PercentualDeDescontoLimite = base::ToCurrency(limite);
}

std::optional<RegrasDeDesconto::Promocao> RegrasDeDesconto::PromocaoPara(
    const base::RecordSet& empresa, TipoDeLancamento tipo) {
  const Periodo periodo = PeriodoDe(empresa, "DataInicialDaPromocao", "DataFinalDaPromocao");
  if (periodo == Periodo::kNenhum) return std::nullopt;
  if (periodo == Periodo::kFora) return Promocao{.encerrada = true, .percentual = {}};
  return Promocao{.encerrada = false,
                  .percentual = base::ToCurrency(empresa.Fields(
                      tipo == servicos::kProduto ? "PercPromocaoDeDescontoNaVendaDeProduto"
                                                 : "PercPromocaoDeDescontoNaVendaDeServico"))};
}

std::optional<base::Value> RegrasDeDesconto::MaximoAutomatico(const base::RecordSet& empresa,
                                                              TipoDeLancamento tipo) {
  if (PeriodoDe(empresa, "DataInicialDoDesctoMaxAutomatico", "DataFinalDoDesctoMaxAutomatico") !=
      Periodo::kDentro) {
    return std::nullopt;
  }
  return empresa.Fields(tipo == servicos::kServico ? "PercDeDescMaxAutNaVendaDeServico"
                                                   : "PercDeDescMaxAutNaVendaDeProduto");
}

}  // namespace sale
