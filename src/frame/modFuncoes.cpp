#include "frame/modFuncoes.h"

#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/Consultas.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/modPegarNomeDoComputador.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"

namespace frame {

using servicos::ZOVA_N_Administrativo::clsAdministrativo;
using servicos::ZOVA_N_ClientAnim::clsClientes;

std::int16_t VerificarBloqueioDoClienteParaOperacoesNosCaixas(double codigo) {
  std::int16_t resultado = 0;
  Procedimento(etiquetas::kVerificarBloqueioDoCliente, [&](Ponto& ponto) {
    auto administrativo = CriarServicoComSessao<clsAdministrativo>();
    ponto = 2;
    if (administrativo->SelecionarClientesComTransacoesBloqueadas(2, 0, codigo, 1) != 0) return;
    ponto = 3;
    const base::RecordSetPtr bloqueios = administrativo->ResultadoDaSelecaoEmRecordSet();
    if (bloqueios->RecordCount() == 0) return;
    bloqueios->MoveFirst();
    const std::string computador = base::ToText(bloqueios->Fields("NomeDoComputador"));
    if (base::Upper(computador) == base::Upper(PegarNomeDoComputador())) return;
    ponto = 4;
    Informar("A T E N Ç Ã O !\n\nEste cliente está em atendimento com o(a) operador(a): \n\t" +
             base::ToText(bloqueios->Fields("NomeDoUsuario")) + "\n\nNo computador:\n\t" +
             computador +
             "\n\nNo momento o atendimento deste cliente está indisponível neste caixa.");
    resultado = 1;
  });
  return resultado;
}

void BloquearOuDesbloquearClienteParaOperacoesNosCaixas(double codigo, std::int16_t acao) {
  auto administrativo = servicos::CriarServico<clsAdministrativo>();
  if (acao == kBloquear) administrativo->NomeDoComputador(PegarNomeDoComputador());
  administrativo->DadosDoUsuario(valores().DadosDoUsuario);
  std::int32_t& bloqueado = valores().CodigoDoClienteComOperacoesBloqueadas;
  if (acao == kBloquear) {
    administrativo->BloquearCliente(1, codigo, 2);
    bloqueado = base::ToInt32(codigo);
  } else {
    administrativo->DesbloquearCliente(1, codigo, 2);
    bloqueado = 0;
  }
}

bool RetornarCreditoDoCliente(double codigo, base::Currency& credito) {
  bool lido = false;
  Procedimento(etiquetas::kRetornarCreditoDoCliente, [&](Ponto& ponto) {
    auto clientes = CriarServicoComSessao<clsClientes>();
    ponto = 2;
    if (consultas::Cliente(*clientes, codigo) != servicos::kSucesso) {
      ExibirErroDoServico(*clientes);
      return;
    }
    ponto = 3;
    const base::RecordSetPtr encontrados = clientes->ResultadoDaSelecaoEmRecordSet();
    if (encontrados->RecordCount() == 1) {
      encontrados->MoveFirst();
      credito = base::ToCurrency(encontrados->Fields("Credito"));
    }
    lido = true;
  });
  return lido;
}

bool InformacoesDoLimiteDeCredito(double codigo, base::Currency valor) {
  bool permitido = false;
  Procedimento(etiquetas::kInformacoesDoLimiteDeCredito, [&](Ponto& ponto) {
    auto clientes = CriarServicoComSessao<clsClientes>();
    ponto = 2;
    base::Currency limite, utilizado, disponivel;
    if (clientes->RetornarInformacoesDoLimiteDeCredito(codigo, limite, utilizado, disponivel) !=
        0) {
      ExibirErroDoServico(*clientes);
      return;
    }
    ponto = 3;
    if (limite <= base::Currency() || valor <= disponivel) {
      permitido = true;
      return;
    }
    const bool administrador = Direito("Administrador");
    platform::Desktop::Current().Ask(
        {"A T E N Ç Ã O !\n\nO valor a pagar a crédito (fiado), excede o valor disponível do "
         "limite de crédito.\n\nLimite: " +
             base::FormatMoney(limite) + "   -   Utilizado: " + base::FormatMoney(utilizado) +
             "   -   Disponível: " + base::FormatMoney(disponivel) + "\n\n" +
             (administrador ? "A venda será efetuada." : "Selecione outra forma de pagamento."),
         valores().NomeDaAplicacao + " - Limite de crédito", platform::Icon::kInformation,
         platform::Buttons::kOk, platform::Answer::kOk});
    permitido = administrador;
  });
  return permitido;
}

}  // namespace frame
