#include "frame/Empresa.h"

#include "frame/Mensagens.h"
#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"

namespace frame {

LeituraDaEmpresa LerEmpresa() {
  auto servico = servicos::CriarServico<servicos::ZOVA_N_Empresa::clsEmpresa>();
  const std::int16_t resultado = servico->Selecionar(1, 2);
  switch (resultado) {
    case servicos::kSucesso: {
      base::RecordSetPtr empresa = servico->ResultadoDaSelecaoEmRecordSet();
      empresa->MoveFirst();
      return {std::move(empresa), false};
    }
    case servicos::kErro:
    case servicos::kRecusa:
    case servicos::kRecusaGrave:
      Aceitar(resultado, *servico);
      return {nullptr, true};
    // A result that nothing is agreed on leaves things as they are.
    default:
      return {nullptr, false};
  }
}

std::optional<std::string> EmpresaParaImprimir() {
  const LeituraDaEmpresa leitura = LerEmpresa();
  if (leitura.falhou) return std::nullopt;
  if (leitura.Cadastrada()) return base::ToText(leitura.empresa->Fields("NomeFantasia"));
  Informar(
      "Não foi possível imprimir o documento porque não há empresa cadastrada.\n"
      "Selecione a guia (aba) 'Cadastros' e em seguida, clique na opções 'Empresa'. Efetue o "
      "cadastro e solicite a impressão novamente");
  return std::nullopt;
}

}  // namespace frame
