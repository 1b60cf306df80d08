#include "frame/Lista.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/modRolagemComMouse.h"

namespace frame {
namespace {

std::string TextoDaCelula(const base::Value& valor, TipoDeColuna tipo) {
  constexpr std::size_t kHoraEMinuto = 5;
  if (valor.Is<base::Currency>()) return TextoDeValor(valor);
  if (!valor.Is<base::DateTime>()) return base::ToText(valor);
  const base::DateTime momento = base::ToDate(valor);
  if (tipo == kData) return base::Format(momento, base::DateMask::kDayMonthYear);
  // What follows the date of a moment that is not midnight.
  const std::string inteiro = base::ToText(momento);
  const std::size_t hora = inteiro.find(' ');
  return hora == std::string::npos ? "00:00" : base::Mid(inteiro, hora + 2, kHoraEMinuto);
}

/// Where the records have the field; error 9 when they do not.
std::int32_t PosicaoDoCampo(const base::RecordSet& registros, std::string_view campo) {
  const std::string procurado = base::Upper(campo);
  for (std::int32_t i = 0; i < registros.FieldCount(); ++i) {
    if (base::Upper(registros.FieldName(i)) == procurado) return i;
  }
  throw base::RuntimeError(base::Fault::kIndexOutOfRange);
}

}  // namespace

Lista::Lista(platform::MSFlexGrid& grade, std::span<const Coluna> colunas)
    : grade_(grade), colunas_(colunas) {
  grade_.Click = [this] { Clicar(); };
  grade_.DblClick = [this] { Abrir(); };
  grade_.KeyDown = [this](platform::KeyStroke& tecla) { Teclar(tecla); };
  grade_.SelChange = [this] {
    SelecionarLinhaInteira(grade_);
    Selecionar();
  };
  grade_.GotFocus = [this] { AtivarRolagemComMouse(grade_.OwnerForm(), grade_); };
  grade_.LostFocus = [] { DesativarRolagemComMouse(); };
}

void Lista::Esvaziar() {
  ConfigurarColunas(grade_, colunas_);
  SelecionarLinha(grade_, 1);
  classificacao_ = {};
  quantos_ = 0;
}

void Lista::Preencher(base::RecordSet& registros) {
  // A list may have thousands of rows: each field is looked for once.
  const auto pelosNomes = [&] {
    std::vector<Campo> campos;
    std::int32_t numero = 0;
    for (const Coluna& coluna : colunas_) {
      if (!coluna.campo.empty()) {
        campos.push_back({numero, PosicaoDoCampo(registros, coluna.campo)});
      }
      ++numero;
    }
    return campos;
  };
  Preencher(registros, pelosNomes, TextoDaCelula);
}

void Lista::PreencherPorPosicao(base::RecordSet& registros) {
  const auto pelaPosicao = [&] {
    std::vector<Campo> campos;
    const std::int32_t quantos = std::min(registros.FieldCount(), grade_.Cols());
    campos.reserve(static_cast<std::size_t>(quantos));
    for (std::int32_t i = 0; i < quantos; ++i) campos.push_back({i, i});
    return campos;
  };
  Preencher(registros, pelaPosicao, [](const base::Value& valor, TipoDeColuna tipo) {
    return base::Replace(TextoDaCelula(valor, tipo), "\u00A0", "\n");
  });
}

template <class Campos, class Texto>
void Lista::Preencher(base::RecordSet& registros, Campos campos, Texto texto) {
  const SemRedesenho semRedesenho(grade_);
  Esvaziar();
  if (registros.RecordCount() == 0) return;
  const std::vector<Campo> lidos = campos();
  // Records that cannot be shown leave the list empty, with no row to choose.
  grade_.Rows(registros.RecordCount() + 1);
  quantos_ = registros.RecordCount();
  std::int32_t linha = 1;
  base::ForEachRow(registros, [&] {
    for (const auto& [coluna, campo] : lidos) {
      const TipoDeColuna tipo = colunas_[static_cast<std::size_t>(coluna)].tipo;
      grade_.TextMatrix(linha, coluna, texto(registros.Fields(campo), tipo));
    }
    ++linha;
  });
  SelecionarLinha(grade_, 1);
}

std::string Lista::Selecionado(std::int32_t coluna) const {
  return quantos_ == 0 ? std::string() : grade_.TextMatrix(grade_.Row(), coluna);
}

void Lista::SelecionarOnde(std::int32_t coluna, const std::string& texto) {
  for (std::int32_t linha = 1; linha <= quantos_; ++linha) {
    if (grade_.TextMatrix(linha, coluna) == texto) return SelecionarA(linha);
  }
}

void Lista::SelecionarA(std::int32_t linha) {
  SelecionarLinha(grade_, linha);
  Selecionar();
}

void Lista::Classificar(std::int16_t coluna, bool alternar) {
  frame::Classificar(grade_, coluna, alternar, classificacao_);
  Selecionar();
}

void Lista::Clicar() {
  if (quantos_ == 0) return;
  if (grade_.MouseRow() != 0) {
    if (aoEscolher) aoEscolher();
    return;
  }
  Classificar(static_cast<std::int16_t>(grade_.MouseCol()), true);
}

void Lista::Abrir() {
  if (aoAbrir && quantos_ > 0 && grade_.MouseRow() > 0) aoAbrir();
}

void Lista::Teclar(platform::KeyStroke& tecla) {
  const auto& acao = aoEscolher ? aoEscolher : aoAbrir;
  if (tecla.key != platform::Key::kEnter || !acao || quantos_ == 0) return;
  // The screen that opens next shall not take it for its own.
  tecla.key = platform::Key::kNone;
  acao();
}

void Lista::Selecionar() {
  if (aoSelecionar) aoSelecionar();
}

}  // namespace frame
