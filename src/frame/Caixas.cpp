#include "frame/Caixas.h"

#include "frame/Mensagens.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "platform/Input.h"

namespace frame {

base::RecordSetPtr LerCaixas(platform::ZVComboBox& lista, Ponto& ponto) {
  auto caixas = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
  ponto = 2;
  if (caixas->SelecionarParaComboBox() != servicos::kSucesso) {
    ExibirErroDoServico(*caixas);
    return nullptr;
  }
  ponto = 3;
  base::RecordSetPtr linhas = caixas->ResultadoDaSelecaoEmRecordSet();
  lista.Clear();
  if (linhas->RecordCount() > 0) return linhas;
  Informar(
      "Nenhum caixa cadastrado ou ativado.\nÉ necessário ter pelo menos um caixa cadastrado ou "
      "ativado para o início de operações.");
  platform::input::SendKeys("+({HOME})");
  return nullptr;
}

}  // namespace frame
