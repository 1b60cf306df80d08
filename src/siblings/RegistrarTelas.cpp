#include "siblings/RegistrarTelas.h"

#include <memory>
#include <string>

#include "frame/Mensagens.h"
#include "frame/servicos/ZOVA_A_ClientAnim.clsClientAnim.h"
#include "frame/servicos/ZOVA_A_ClientHist.clsHistDeVendas.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_A_Orcamentos.clsOrcamentos.h"
#include "frame/servicos/ZOVA_A_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "platform/Desktop.h"
#include "siblings/frmMensagemDeErro.h"

namespace siblings {
namespace {

constexpr std::int16_t kSemCadastrar = 99;

void Indisponivel(std::string_view tela) {
  frame::Informar("A tela '" + std::string(tela) + "' ainda não está disponível nesta versão.");
}

class VisorDeErro final : public servicos::ZOVA_A_MsgErro::clsMensagem {
 public:
  void Exibir(std::int32_t numero, std::string_view descricao, std::string_view local,
              std::string_view nomeDaAplicacao) override {
    frmMensagemDeErro visor;
    visor.MontarExibirFormulario(numero, descricao, local, nomeDaAplicacao);
  }
};

class Escurecimento final : public servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro {
 public:
  void Aplicar(std::int32_t& janela, std::int16_t& intensidade) override {
    platform::Desktop::Current().Dim(janela, intensidade);
  }
  void Remover(std::int32_t& janela) override { platform::Desktop::Current().Undim(janela); }
};

/// Accepts what every sibling screen is given.
template <class Contrato>
class TelaComum : public Contrato {
 public:
  void DadosDoUsuario(const base::Record*) override {}
  void NomeDaAplicacao(std::string_view) override {}
};

class Historico final : public TelaComum<servicos::ZOVA_A_ClientHist::clsHistDeVendas> {
 public:
  void CodigoDoCliente(double) override {}
  void ApelidoOuNomeFantasiaDoCliente(std::string_view) override {}
  void NomeOuRazaoSocialDoCliente(std::string_view) override {}
  void DataInicialDoHistorico(std::string_view) override {}
  void AbrirFichaExibicao() override { Indisponivel("Histórico de vendas"); }
};

class Orcamentos final : public TelaComum<servicos::ZOVA_A_Orcamentos::clsOrcamentos> {
 public:
  void CodigoDoCliente(double) override {}
  void ApelidoOuNomeFantasiaDoCliente(std::string_view) override {}
  void NomeOuRazaoSocialDoCliente(std::string_view) override {}
  void CodigoDoAnimal(std::int32_t) override {}
  void NomeDoAnimal(std::string_view) override {}
  void AbrirFicha() override { Indisponivel("Orçamentos"); }
};

class CadastroDeMunicipio final : public TelaComum<servicos::ZOVA_A_ClientAnim::clsClientAnim> {
 public:
  void CodigoDoCliente(double) override {}
  void ApelidoOuNomeFantasiaDoCliente(std::string_view) override {}
  void NomeOuRazaoSocialDoCliente(std::string_view) override {}
  std::int16_t AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio() override {
    Indisponivel("Código IBGE do município");
    return kSemCadastrar;
  }
};

class CadastroDeNCM final : public TelaComum<servicos::ZOVA_A_Produtos::clsProdutos> {
 public:
  void CodigoInterno(double) override {}
  void Nome(std::string_view) override {}
  std::int16_t AbrirFichaDeCadastroDeNCM() override {
    Indisponivel("NCM do produto");
    return kSemCadastrar;
  }
};

class NotaPromissoria final : public TelaComum<servicos::ZOVA_A_RelFin::clsRelFin> {
 public:
  void ImprimirNotaPromissoria(std::string_view, base::DateTime, base::Currency, double,
                               bool&) override {
    Indisponivel("Nota promissória");
  }
};

template <class Tela>
void Registrar() {
  servicos::Registrar(Tela::kIdentificador, [] { return std::make_unique<Tela>(); });
}

}  // namespace

void RegistrarTelas() {
  Registrar<VisorDeErro>();
  Registrar<Escurecimento>();
  Registrar<Historico>();
  Registrar<Orcamentos>();
  Registrar<CadastroDeMunicipio>();
  Registrar<CadastroDeNCM>();
  Registrar<NotaPromissoria>();
}

}  // namespace siblings
