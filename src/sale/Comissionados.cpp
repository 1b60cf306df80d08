#include "base/Text.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"
#include "platform/Input.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using frame::Ponto;
using frame::Procedimento;

namespace {

/// An item of the employee list: the name in the first hundred characters, the commission behind
/// it.
constexpr std::size_t kLarguraDoNome = 100;
constexpr std::size_t kLarguraDaComissao = 50;

struct ComissaoDoTipo {
  std::int32_t tipo;
  std::string_view campo;
};
constexpr ComissaoDoTipo kComissoes[] = {{1, "PercentualDeComissaoEmClinicos"},
                                         {2, "PercentualDeComissaoEmCirurgiaSimples"},
                                         {3, "PercentualDeComissaoEmCirurgiaMedia"},
                                         {4, "PercentualDeComissaoEmCirurgiaComplexa"},
                                         {5, "PercentualDeComissaoEmBanhosTosasEEsteticas"},
                                         {6, "PercentualDeComissaoEmHospedagens"},
                                         {7, "PercentualDeComissaoEmAdestramentos"},
                                         {99, "PercentualDeComissaoEmOutros"}};

bool EhSim(const base::Value& valor) {
  return base::Upper(base::ToText(valor)) == "SIM";
}

/// What an employee earns on a service of the type; 0 without a type.
Currency ComissaoEmServico(const base::RecordSet& funcionario, std::int32_t tipo) {
  if (EhSim(funcionario.Fields("ComissaoUnica"))) {
    return base::ToCurrency(funcionario.Fields("PercentualDeComissaoUnica"));
  }
  for (const ComissaoDoTipo& comissao : kComissoes) {
    if (comissao.tipo == tipo) return base::ToCurrency(funcionario.Fields(comissao.campo));
  }
  return {};
}

}  // namespace

void frmCaixaOperar::PreencherComboboxTiposDeServicos(std::int16_t& falha) {
  Procedimento(", frmCaixaOperar, PreencherComboboxTiposDeServicos, Ponto: ", [&](Ponto& ponto) {
    auto tipos = servicos::CriarServico<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ>();
    double todos = 0;
    ponto = 2;
    if (tipos->SelecionarParaComboBox(todos) != 0) {
      frame::ExibirErroDoServico(*tipos);
      falha = 1;
      return;
    }
    const base::RecordSetPtr linhas = tipos->ResultadoDaSelecaoEmRecordSet();
    zvcmbTiposDeServicos.Clear();
    ponto = 3;
    if (linhas->RecordCount() == 0) {
      frame::Informar(
          "Nenhum tipo de serviço cadastrado.\nÉ necessário ter no mínimo um tipo de serviço "
          "cadastrado para incluir um agendamento.");
      falha = 1;
      return;
    }
    base::ForEachRow(*linhas, [&] {
      zvcmbTiposDeServicos.AddItem(base::ToText(linhas->Fields("Nome")),
                                   base::ToInt32(linhas->Fields("Numero")));
    });
    falha = 0;
  });
}

bool frmCaixaOperar::PreencherComboboxComissionados(std::int16_t tipo) {
  bool preenchido = false;
  Procedimento(", frmFichaClinica, PreencherComboboxComissionados, Ponto: ", [&](Ponto& ponto) {
    auto funcionarios = servicos::CriarServico<servicos::ZOVA_N_Funcionarios::clsFuncionarios>();
    double codigo = 0;
    ponto = 2;
    if (funcionarios->Selecionar(2, 0, 1, "", "", codigo)) {
      frame::ExibirErroDoServico(*funcionarios);
      return;
    }
    const base::RecordSetPtr linhas = funcionarios->ResultadoDaSelecaoEmRecordSet();
    ponto = 3;
    if (linhas->RecordCount() == 0) {
      if (codigo != 0) {
        frame::Informar("Nenhum funcionário encontrado com o código '" + base::ToText(codigo) +
                        "' informado.");
        platform::input::SendKeys("+({HOME})");
      }
      preenchido = true;
      return;
    }
    ponto = 4;
    zvcmbComissionado.Clear();
    zvcmbComissionado.AddItem("", 0);
    const std::int32_t escolhido = zvcmbTiposDeServicos.ListIndex();
    const std::int32_t tipoDeServico =
        escolhido == -1 ? 0 : zvcmbTiposDeServicos.ItemData(escolhido);
    base::ForEachRow(*linhas, [&] {
      if (!EhSim(linhas->Fields("Comissionado"))) return;
      const Currency percentual = tipo == kProduto ? PercentualDeComissaoDoProduto
                                                   : ComissaoEmServico(*linhas, tipoDeServico);
      if (tipo == kServico && percentual.IsZero()) return;
      zvcmbComissionado.AddItem(
          base::PadRight(base::ToText(linhas->Fields("Apelido")), kLarguraDoNome) +
              base::PadRight(base::FormatMoney(percentual), kLarguraDaComissao),
          base::ToInt32(linhas->Fields("Codigo")));
    });
    preenchido = true;
  });
  return preenchido;
}

}  // namespace sale
