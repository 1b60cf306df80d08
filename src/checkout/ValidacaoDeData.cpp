#include "checkout/ValidacaoDeData.h"

#include <string_view>

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "platform/Desktop.h"

namespace checkout {
namespace {

RecusaDeData Recusa(const std::string& motivo, bool grave = false) {
  return {"Data de vencimento inválida.\n" + motivo, grave};
}

std::string NoMaximo(int dias, int mes) {
  return "Informe no máximo " + base::ToText(dias) + " dias para o mês " + base::ToText(mes) + ".";
}

int Numero(std::string_view digitos, std::size_t inicio, std::size_t quantos) {
  return base::ToInt32(base::Val(base::Mid(digitos, inicio, quantos)));
}

}  // namespace

std::optional<RecusaDeData> RecusaDaData(int dia, int mes, int ano) {
  if (dia == 0) return Recusa("O dia da data deve ser maior que zero.");
  if (mes == 0) return Recusa("O mês da data de vencimento deve ser maior que zero.");
  if (ano == 0) return Recusa("O ano da data de vencimento deve ser maior que zero.");
  switch (mes) {
    case 2:
      if (dia >= 30) return Recusa(NoMaximo(29, mes), true);
      if (dia == 29 && ano % 4 != 0) return Recusa(NoMaximo(28, mes), true);
      return std::nullopt;
    case 4:
    case 6:
    case 9:
    case 11:
      if (dia > 30 || dia < 1) return Recusa("Este mês só tem 30 dias", true);
      return std::nullopt;
    default:
      if (mes > 12 || mes < 1) return Recusa("Este mês não existe!", true);
      if (dia > 31) return Recusa(NoMaximo(31, mes));
      return std::nullopt;
  }
}

std::int16_t frmCaixaPagar::ValidarData(std::string_view texto) {
  std::int16_t resultado = 1;
  frame::Procedimento(frame::etiquetas::kValidarData, [&](frame::Ponto& ponto) {
    if (base::IsBlank(texto)) {
      frame::Informar("Informe a data de vencimento");
      return;
    }
    ponto = 2;
    if (!base::IsDate(texto) && !base::IsDate(base::FormatDateDigits(texto))) {
      frame::Informar(
          "Data de vencimento inválida.\nVerifique se a data esta no formato dd/mm/aaaa ou se o "
          "dia ou o mês são existentes.");
      return;
    }
    ponto = 3;
    const std::string digitos = base::Replace(texto, "/", "");
    const int dia = Numero(digitos, 1, 2);
    const int mes = Numero(digitos, 3, 2);
    const int ano = Numero(digitos, 5, 4);
    if (const std::optional<RecusaDeData> recusa = RecusaDaData(dia, mes, ano)) {
      if (recusa->grave) {
        frame::Parar(recusa->texto);
      } else {
        frame::Informar(recusa->texto);
      }
      return;
    }
    ponto = 4;
    const bool vencida = base::DateTime(ano, mes, dia) < platform::Desktop::Current().Now().Date();
    if (vencida &&
        !frame::Perguntar(" A data de vencimento informada é menor que a data atual. Confirma?")) {
      return;
    }
    resultado = 0;
  });
  return resultado;
}

}  // namespace checkout
