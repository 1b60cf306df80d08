#include "services/contrato/AjustesDaEmpresa.h"

#include <algorithm>
#include <iterator>

#include "base/Numbers.h"
#include "base/Text.h"
#include "services/Banco.h"
#include "services/contrato/CamposDaEmpresa.h"

namespace services {
namespace {

using enum Field::Kind;

/// Read by the sign-in, and so no field of the company's record.
constexpr Field kDocumento{"CodigoDoDocumentoComEmissaoPermitida", kText,
                           "codigo_do_documento_com_emissao_permitida"};
constexpr std::string_view kFormatoDaBalanca = "FormatoDeCodigoDeBarrasParaBalanca";

/// A period is there with both its days or not at all.
struct Periodo {
  std::string_view inicio, fim;
};
constexpr Periodo kPeriodos[] = {
    {"DataInicialDaPromocao", "DataFinalDaPromocao"},
    {"DataInicialDoDesctoMaxAutomatico", "DataFinalDoDesctoMaxAutomatico"}};

std::vector<Field> Campos() {
  std::vector<Field> campos(std::begin(kCamposDaEmpresa), std::end(kCamposDaEmpresa));
  campos.insert(campos.end(), std::begin(kEmpresaNosDocumentos) + 1,
                std::end(kEmpresaNosDocumentos));
  campos.push_back(kDocumento);
  return campos;
}

const Field& Campo(const std::vector<Field>& campos, const std::string& nome) {
  const auto achado = std::ranges::find(campos, nome, &Field::name);
  if (achado != campos.end()) return *achado;
  throw AjusteInvalido("A empresa não tem o ajuste '" + nome +
                       "'. Veja os que há com o comando empresa sem argumentos.");
}

[[noreturn]] void Recusar(const Field& campo, const std::string& valor, const std::string& como) {
  throw AjusteInvalido("'" + valor + "' não serve para " + std::string(campo.name) + ": informe " +
                       como + ".");
}

Param SimOuNao(const Field& campo, const std::string& valor) {
  const std::string dito = base::Fold(valor);
  if (dito != "sim" && dito != "nao") Recusar(campo, valor, "Sim ou Não");
  return {dito == "sim"};
}

Param Percentual(const Field& campo, const std::string& valor) {
  if (valor.empty() && campo.name == "PercDeDescontoLimiteDaVendaNoCaixa") return {};
  if (base::IsNumeric(valor) && base::ToDouble(valor) >= 0 && base::ToDouble(valor) <= 100) {
    return {base::ToCurrency(valor)};
  }
  Recusar(campo, valor, "um percentual de 0 a 100, como 12,50");
}

Param Dia(const Field& campo, const std::string& valor) {
  if (valor.empty()) return {};
  if (!base::IsDate(valor)) Recusar(campo, valor, "uma data como 22/11/2026, ou nada");
  return Param::Date(base::ToDate(valor));
}

Param Texto(const Field& campo, const std::string& valor) {
  if (campo.name == kFormatoDaBalanca && valor != "1" && valor != "2") {
    Recusar(campo, valor, "1 (preço na etiqueta) ou 2 (peso na etiqueta)");
  }
  if (campo.name == kDocumento.name && valor != "0" && valor != "11") {
    Recusar(campo, valor, "11 (CF-e SAT) ou 0 (nenhum)");
  }
  if (base::IsBlank(valor)) Recusar(campo, valor, "um texto");
  return {valor};
}

Param Valor(const Field& campo, const std::string& valor) {
  if (campo.kind == kYesNo) return SimOuNao(campo, valor);
  if (campo.kind == kMoney) return Percentual(campo, valor);
  if (campo.kind == kMoment) return Dia(campo, valor);
  return Texto(campo, valor);
}

std::string TextoDe(const Field& campo, const Row& row, int column) {
  if (row.IsNull(column)) return {};
  switch (campo.kind) {
    case kYesNo:
      return row.Flag(column) ? "Sim" : "Não";
    case kMoney:
      return base::FormatMoney(row.Money(column));
    case kMoment:
      return base::Format(row.Moment(column), base::DateMask::kDayMonthYear);
    default:
      return row.Text(column);
  }
}

void ConferirPeriodos(const std::vector<Ajuste>& ajustes) {
  const auto dia = [&](std::string_view nome) {
    return std::ranges::find(ajustes, nome, &Ajuste::first)->second;
  };
  for (const Periodo& periodo : kPeriodos) {
    const std::string inicio = dia(periodo.inicio);
    const std::string fim = dia(periodo.fim);
    const bool inteiro = inicio.empty() == fim.empty();
    if (inteiro && (inicio.empty() || base::ToDate(inicio) <= base::ToDate(fim))) continue;
    throw AjusteInvalido(std::string(periodo.inicio) + " e " + std::string(periodo.fim) +
                         " formam um período: informe os dois dias, o primeiro não depois do "
                         "último, ou nenhum.");
  }
}

}  // namespace

std::vector<Ajuste> LerAjustesDaEmpresa(Banco& banco) {
  const std::vector<Field> campos = Campos();
  static const Statement one("SELECT " + ColumnsOf(campos) +
                             " FROM empresa ORDER BY codigo LIMIT 1");
  std::vector<Ajuste> ajustes;
  banco.Sessao().Select(one, {}, [&](const Row& row) {
    int column = 0;
    for (const Field& campo : campos) {
      ajustes.emplace_back(campo.name, TextoDe(campo, row, column++));
    }
  });
  if (ajustes.empty()) throw AjusteInvalido("Não há empresa cadastrada. Cadastre-a antes.");
  return ajustes;
}

void AlterarEmpresa(Banco& banco, const std::vector<Ajuste>& ajustes) {
  const std::vector<Field> campos = Campos();
  InTransaction(banco.Sessao(), [&](Transaction&) {
    for (const auto& [nome, valor] : ajustes) {
      const Field& campo = Campo(campos, nome);
      const Statement change("UPDATE empresa SET " + std::string(campo.column) +
                             " = $1 WHERE codigo = (SELECT min(codigo) FROM empresa)");
      banco.Sessao().Run(change, {Valor(campo, valor)});
    }
    ConferirPeriodos(LerAjustesDaEmpresa(banco));
  });
}

}  // namespace services
