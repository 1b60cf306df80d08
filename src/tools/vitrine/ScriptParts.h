#pragma once

#include <array>
#include <initializer_list>
#include <span>
#include <vector>

#include "tools/vitrine/Player.h"

/// Stretches of work that several scripts have in common.
namespace vitrine::scripts {

using Act = Step::Act;

inline std::vector<Step> Joined(std::initializer_list<std::span<const Step>> parts) {
  std::vector<Step> script;
  for (const std::span<const Step> part : parts) {
    script.insert(script.end(), part.begin(), part.end());
  }
  return script;
}

/// From the closed register of the reception to an open one.
inline constexpr std::array kOpenRegister{
    Step{Act::kPick, "zvcmbCaixas", "Recepção"},
    Step{Act::kPicture, "", "caixa-fechado"},
    Step{Act::kTool, "tbMenuCaixa", "Abertura"},
    Step{Act::kScreen, "frmCaixaAbrir"},
    Step{Act::kType, "zvnumValorEmDinheiro", "150,00"},
    Step{Act::kType, "zvtxtObservacao", "Fundo de troco da manhã."},
    Step{Act::kPicture, "", "abertura"},
    Step{Act::kClick, "zvcmdSalvar"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPicture, "", "caixa-aberto"},
};

/// A service for the customer's only animal, up to the press that adds it.
inline constexpr std::array kFindService{
    Step{Act::kPick, "zvcmbTiposDeServicos", "Clínicos"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvfCodigoDoServico", "1"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPicture, "", "servico"},
};

/// A product by its barcode, with a discount, up to the press that adds it.
inline constexpr std::array kFindProduct{
    Step{Act::kClick, "optProduto"},
    Step{Act::kType, "zvfCodigoDeBarrasDoProduto", "7890000010030"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvnumPercentualDeDescontoPorItem", "5,00"},
    Step{Act::kKey, "", "Tab"},
    Step{Act::kPicture, "", "balcao"},
};

/// A CPF for the coupon, which is nobody's: numbers that begin so are not given out.
inline constexpr std::array kConsumersDocument{
    Step{Act::kClick, "optTipo(1)"},
    Step{Act::kType, "zvmskCpfCnpj", "99900077725"},
    Step{Act::kPicture, "", "documento-do-consumidor"},
    Step{Act::kClick, "zvcmdEnviar"},
    Step{Act::kBox, "", "Deseja imprimir o comprovante de CF-e / SAT?"},
};

inline constexpr std::array kAdd{
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

}  // namespace vitrine::scripts
