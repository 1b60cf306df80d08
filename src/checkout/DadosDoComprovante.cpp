#include "checkout/DadosDoComprovante.h"

#include "base/Numbers.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"

namespace checkout {

std::optional<DadosDoComprovante> LerDadosDoComprovante(double numeroDaVenda) {
  const std::optional<std::string> empresa = frame::EmpresaParaImprimir();
  if (!empresa) return std::nullopt;
  auto caixa = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  const std::int16_t resultado = caixa->SelecionarItensDeVenda(
      " WHERE ItensDeVendas.NumeroDaVenda = " + base::ToText(numeroDaVenda) + " ");
  if (!frame::Aceitar(resultado, *caixa)) return std::nullopt;
  base::RecordSetPtr itens = caixa->ResultadoDaSelecaoEmRecordSet();
  if (itens->RecordCount() > 0) return DadosDoComprovante{*empresa, std::move(itens)};
  frame::Informar(frame::kSemDadosParaImprimir);
  return std::nullopt;
}

void EmitirComprovante(platform::DataReport& comprovante, frame::PainelDeMensagem& painel) {
  painel.ExibirOcultar(false, false);
  if (frame::valores().VisualizarImpressaoDoComprovanteDePagamento) {
    comprovante.Show();
  } else {
    comprovante.PrintReport();
  }
}

}  // namespace checkout
