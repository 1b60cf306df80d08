#include "base/Text.h"
#include "frame/Consultas.h"
#include "frame/Mensagens.h"
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

/// The field of an employee with the commission on a type of service.
struct ComissaoDoTipo {
  servicos::TipoDeServico tipo;
  std::string_view campo;
};
constexpr ComissaoDoTipo kComissoes[] = {
    {servicos::kClinico, "PercentualDeComissaoEmClinicos"},
    {servicos::kCirurgiaSimples, "PercentualDeComissaoEmCirurgiaSimples"},
    {servicos::kCirurgiaMedia, "PercentualDeComissaoEmCirurgiaMedia"},
    {servicos::kCirurgiaComplexa, "PercentualDeComissaoEmCirurgiaComplexa"},
    {servicos::kBanhosTosasEEsteticas, "PercentualDeComissaoEmBanhosTosasEEsteticas"},
    {servicos::kHospedagem, "PercentualDeComissaoEmHospedagens"},
    {servicos::kAdestramento, "PercentualDeComissaoEmAdestramentos"},
    {servicos::kOutros, "PercentualDeComissaoEmOutros"}};

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
  Procedimento(*this, "PreencherComboboxTiposDeServicos", [&](Ponto& ponto) {
    auto tipos = servicos::CriarServico<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ>();
    ponto = 2;
    if (frame::consultas::TiposDeServicos(*tipos) != servicos::kSucesso) {
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
  Procedimento(frame::etiquetas::kPreencherComboboxComissionados, [&](Ponto& ponto) {
    auto funcionarios = servicos::CriarServico<servicos::ZOVA_N_Funcionarios::clsFuncionarios>();
    double codigo = 0;
    ponto = 2;
    if (frame::consultas::Funcionarios(*funcionarios, codigo)) {
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
    base::ForEachRow(*linhas, [&] {
      if (!EhSim(linhas->Fields("Comissionado"))) return;
      const Currency percentual = tipo == kProduto
                                      ? item_.PercentualDeComissaoDoProduto()
                                      : ComissaoEmServico(*linhas, item_.TipoDeServico());
      if (tipo == kServico && percentual.IsZero()) return;
      // The commission stands behind the padded name, also in the line that is made of it.
      zvcmbComissionado.AddItem(
          base::PadRight(base::ToText(linhas->Fields("Apelido")), servicos::linha::kLarguraDoNome) +
              base::PadRight(base::FormatMoney(percentual), servicos::linha::kLarguraDaComissao),
          base::ToInt32(linhas->Fields("Codigo")));
    });
    preenchido = true;
  });
  return preenchido;
}

}  // namespace sale
