#include "roteiro/ensaio/frmEnsaio.h"

#include "base/RuntimeError.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "platform/Desktop.h"
#include "platform/Input.h"
#include "platform/Layout.h"
#include "roteiro/ensaio/drEnsaio.h"

namespace ensaio {
namespace {

platform::Desktop& Mesa() {
  return platform::Desktop::Current();
}

platform::Answer Caixa(const std::string& texto, platform::Buttons botoes, platform::Icon icone) {
  const bool pergunta = botoes == platform::Buttons::kYesNo;
  return Mesa().Ask(
      {texto, "Ensaio", icone, botoes, pergunta ? platform::Answer::kNo : platform::Answer::kOk});
}

void Esperar(double segundos) {
  const double inicio = Mesa().Elapsed();
  while (Mesa().Elapsed() - inicio < segundos) Mesa().ProcessEvents();
}

}  // namespace

frmFilho::frmFilho() : Form("frmFilho") {
  zvcmdPerguntar.Click = [] {
    Caixa("Continuar?", platform::Buttons::kYesNo, platform::Icon::kQuestion);
  };
  zvcmdFechar.Click = [this] { Hide(); };
  Arrange({{3000, 2000},
           {{ztmTema, {0, 0, 3000, 2000}, "Filho"},
            {zvcmdPerguntar, {100, 100, 1000, 400}, "Perguntar"},
            {zvcmdFechar, {100, 600, 1000, 400}, "Fechar"}}});
}

frmEnsaio::frmEnsaio() : Form("frmEnsaio") {
  MontarControles();
  LigarEventos();
  Arrange({{9000, 9000},
           {{ztmTema, {0, 0, 9000, 9000}, "Ensaio "},
            {lblDiario, {0, 0, 9000, 300}},
            {zvtxtNome, {0, 400, 2000, 300}},
            {zvdtpData, {0, 800, 2000, 300}},
            {zvfBusca, {0, 1200, 2000, 300}},
            {zvcmbLista, {0, 1600, 2000, 300}},
            {optTipo1, {0, 2000, 1000, 300}, "Um"},
            {optTipo2, {1000, 2000, 1000, 300}, "Dois"},
            {msfgGrade, {0, 2400, 5000, 3000}},
            {zvcmdEsperar, {0, 6000, 1000, 300}, "Esperar"},
            {zvcmdCongelar, {0, 6400, 1000, 300}, "Congelar"},
            {zvcmdAguardarArquivo, {0, 6800, 1000, 300}, "Aguardar"},
            {zvcmdServico, {0, 7200, 1000, 300}, "Serviço"},
            {zvcmdErro, {0, 7600, 1000, 300}, "Erro"},
            {zvcmdTecla, {0, 8000, 1000, 300}, "Tecla"},
            {zvcmdDesligado, {0, 8400, 1000, 300}, "Desligado"},
            {zvcmdVisualizar, {1000, 8000, 1000, 300}, "Visualizar"},
            {zvcmdImprimir, {1000, 8400, 1000, 300}, "Imprimir"},
            {picOculto, {3000, 6000, 1000, 300}},
            {zvtxtOculto, {0, 0, 500, 300}},
            {picMensagem, {3000, 4000, 2000, 800}},
            {lblMensagem, {0, 0, 2000, 300}, "Aguarde, ensaiando"},
            {tbMenu, {8000, 0, 1000, 9000}}}});
}

void frmEnsaio::MontarControles() {
  zvcmbLista.AddItem("Balcão" + std::string(94, ' ') + "1", 10);
  zvcmbLista.AddItem("Depósito", 20);
  msfgGrade.Rows(3);
  msfgGrade.Cols(2);
  msfgGrade.TextMatrix(0, 0, "Nome");
  msfgGrade.TextMatrix(0, 1, "Valor");
  msfgGrade.TextMatrix(1, 0, "Banho");
  msfgGrade.TextMatrix(2, 0, "Tosa");
  msfgGrade.ColWidth(1, 0);
  msfgGrade.ColData(1, 7);
  msfgGrade.Row(0);
  msfgGrade.CellPicture("Classificacao_Crescente");
  msfgGrade.Row(1);
  msfgGrade.CellForeColor(255);
  picOculto.Visible = false;
  picMensagem.Visible = false;
  zvcmdDesligado.Enabled = false;
  mnuSegundo.Checked = true;
  mnuFechado.Enabled = false;
  tbMenu.Add("Popup", "Popup", "popup");
  tbMenu.Add("Filho", "Filho", "filho");
  tbMenu.Add("Desligado", "Desligado", "desligado").Enabled = false;
}

void frmEnsaio::LigarEventos() {
  Load = [this] { MousePointer = platform::kHourglassPointer; };
  Activate = [this] { MousePointer = platform::kDefaultPointer; };
  zvtxtNome.Validate = [this](bool& recusado) {
    Anotar("valida");
    if (zvtxtNome.Text() != "preso") return;
    recusado = true;
    Caixa("Não pode.\r\nCorrija.", platform::Buttons::kOk, platform::Icon::kStop);
  };
  zvtxtNome.LostFocus = [this] { Anotar("sai"); };
  zvdtpData.GotFocus = [this] { Anotar("entra"); };
  zvfBusca.Click = [this] {
    Anotar(Perguntar("Procurar " + zvfBusca.Text() + "?") ? "sim" : "não");
  };
  zvcmbLista.DropDown = [this] {
    Anotar("abre");
    if (zvcmbLista.ListCount() == 2) zvcmbLista.AddItem("Novo", 30);
  };
  zvcmbLista.Click = [this] { Anotar("escolhe " + base::ToText(zvcmbLista.ListIndex())); };
  optTipo2.Click = [this] { Anotar("dois"); };
  msfgGrade.MouseDown = [this](platform::MouseButton botao) {
    Anotar(botao == platform::MouseButton::kLeft ? "aperta" : "direito");
  };
  msfgGrade.Click = [this] { Anotar("clica " + base::ToText(msfgGrade.Row())); };
  msfgGrade.DblClick = [this] { Anotar("duplo"); };
  zvcmdEsperar.Click = [this] { zvcmdEsperar_Click(); };
  zvcmdCongelar.Click = [this] { zvcmdCongelar_Click(); };
  zvcmdAguardarArquivo.Click = [this] { zvcmdAguardarArquivo_Click(); };
  zvcmdServico.Click = [this] { zvcmdServico_Click(); };
  zvcmdErro.Click = [] { throw base::RuntimeError(base::Fault::kTypeMismatch); };
  zvcmdTecla.Click = [] { platform::input::SendKeys("+({HOME})"); };
  zvcmdVisualizar.Click = [this] { zvcmdVisualizar_Click(); };
  zvcmdImprimir.Click = [] { drEnsaio().PrintReport(); };
  mnuPrimeiro.Click = [this] { Anotar("primeiro"); };
  mnuSegundo.Click = [this] { Anotar(Perguntar("Segundo?") ? "segundo" : "nada"); };
  tbMenu.ButtonClick = [this](const platform::ToolbarButton& botao) { tbMenu_ButtonClick(botao); };
}

void frmEnsaio::Anotar(const std::string& oQue) {
  lblDiario.Caption = lblDiario.Caption() + oQue + ";";
}

bool frmEnsaio::Perguntar(const std::string& texto) {
  return Caixa(texto, platform::Buttons::kYesNo, platform::Icon::kQuestion) ==
         platform::Answer::kYes;
}

void frmEnsaio::zvcmdEsperar_Click() {
  std::int32_t janela = 1;
  std::int16_t intensidade = 1;
  servicos::CriarServico<servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro>()->Aplicar(janela,
                                                                                    intensidade);
  picMensagem.Visible = true;
  Esperar(1);
  picMensagem.Visible = false;
  servicos::CriarServico<servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro>()->Remover(janela);
  Anotar("esperou");
}

void frmEnsaio::zvcmdCongelar_Click() {
  Mesa().Freeze(2);
  Anotar(Mesa().FileExists(Mesa().ModuleFolder() + "/retorno.txt") ? "há" : "não há");
  Esperar(0.05);
  Anotar("descongelou");
}

void frmEnsaio::zvcmdAguardarArquivo_Click() {
  const std::string arquivo = Mesa().ModuleFolder() + "/retorno.txt";
  const double inicio = Mesa().Elapsed();
  while (Mesa().Elapsed() - inicio < 10) {
    if (Mesa().FileExists(arquivo)) {
      Anotar("achou " + Mesa().ReadFile(arquivo));
      break;
    }
    Mesa().ProcessEvents();
  }
  Anotar(base::ToText(base::Round(Mesa().Elapsed() - inicio, 2)) + " s");
}

void frmEnsaio::zvcmdServico_Click() {
  const base::Record* sessao = nullptr;
  auto caixas = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
  caixas->DadosDoUsuario(sessao);
  const std::int16_t status = caixas->SelecionarParaComboBox();
  if (status == servicos::kErro) {
    servicos::CriarServico<servicos::ZOVA_A_MsgErro::clsMensagem>()->Exibir(
        caixas->NumeroDoErro(), caixas->DescricaoDoErro(), caixas->LocalDoErro(), "Ensaio");
    return;
  }
  const base::RecordSetPtr linhas = caixas->ResultadoDaSelecaoEmRecordSet();
  for (std::int32_t i = 0; i < linhas->FieldCount(); ++i) Anotar(linhas->FieldName(i));
  Anotar(linhas->GetString(",", "|"));
  auto clientes = servicos::CriarServico<servicos::ZOVA_N_ClientAnim::clsClientes>();
  double codigo = 12;
  base::Currency limite, utilizado, disponivel;
  clientes->RetornarInformacoesDoLimiteDeCredito(codigo, limite, utilizado, disponivel);
  Anotar(base::ToText(limite) + "/" + base::ToText(disponivel));
  auto caixa = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  caixa->GradeDeItensDaVenda(&msfgGrade);
  caixa->ValorDoLancamento(-100.0);
  caixa->ValorBruto(base::ToCurrency("12,5"));
  const std::int16_t registrado = caixa->RegistrarPagamento();
  Anotar(base::ToText(registrado) + " " + base::ToText(caixa->NumeroDaVenda()));
}

void frmEnsaio::zvcmdVisualizar_Click() {
  drEnsaio relatorio;
  relatorio.Title = "Relatório de ensaio";
  relatorio.lblOculto.Visible = false;
  relatorio.Show();
  Anotar("fechou a visualização");
}

void frmEnsaio::tbMenu_ButtonClick(const platform::ToolbarButton& botao) {
  if (botao.Key() == "Popup") {
    mnuPopup.PopUp(tbMenu);
    Anotar("fim do popup");
  } else {
    frmFilho filho;
    filho.ShowModal();
    Anotar("fim do filho");
  }
}

}  // namespace ensaio
