#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "base/Record.h"
#include "checkout/drComprovante.h"

namespace support {

/// The receipt of a sale with so many lines, one of them with a name that is too long for its
/// column.
inline std::unique_ptr<checkout::drComprovanteDePagamentoDeVenda> ReceiptOf(
    int lines, const platform::Paper& paper = platform::kA4Paper) {
  auto rows = std::make_shared<base::RecordSet>(std::vector<std::string>{
      "DataDoServicoEfetuadoOuProdutoReservado", "NomeDoAnimal", "NomeDoServicoOuProduto",
      "Quantidade", "UnidadeDeVenda", "ValorUnitario", "ValorDeDesconto", "ValorTotal"});
  base::Currency sum;
  for (std::int32_t line = 1; line <= lines; ++line) {
    const auto amount = base::Currency::FromTenThousandths(std::int64_t{119'900} * line);
    sum += amount;
    const std::string name =
        line % 10 == 2 ? "Ração para cães adultos de porte pequeno, frango com legumes, 10,1 kg"
                       : "Vacina múltipla " + std::to_string(line);
    rows->Append(
        {base::DateTime(2026, 11, 22), "Bob", name, 1, "UN", amount, base::Currency(), amount});
  }
  auto receipt = std::make_unique<checkout::drComprovanteDePagamentoDeVenda>(paper);
  receipt->Title = "Imprimir comprovante de pagamento de venda";
  receipt->lblNomeFantasiaDaEmpresa.Caption = "Clínica Bicho Contente";
  receipt->lblNumeroDaVenda.Caption = "1024";
  receipt->lblCodigoENomeOuRazaoSocialDoCliente.Caption = "12 - Ana Maria Souza";
  receipt->txtTotalDosServicosEProdutos.Caption = base::FormatMoney(sum);
  receipt->lblValorPago.Caption = "Valor Pago (Dinheiro):";
  receipt->txtValorPago.Caption = base::FormatMoney(sum);
  receipt->DataSource = std::move(rows);
  return receipt;
}

}  // namespace support
