#include "platform/Desktop.h"
#include "tools/roteiro/StandIn.h"

namespace roteiro {
namespace {

using std::string_view;

/// Each class of the contract has its own.
template <class Contract>
class StandInOf;

/// What all screens about one customer are given.
template <class Contract>
class CustomerScreenStandIn : public ScreenStandIn<Contract> {
 public:
  using ScreenStandIn<Contract>::ScreenStandIn;

  void CodigoDoCliente(double v) override { this->Set(__func__, v); }
  void ApelidoOuNomeFantasiaDoCliente(string_view v) override { this->Set(__func__, v); }
  void NomeOuRazaoSocialDoCliente(string_view v) override { this->Set(__func__, v); }
};

template <>
class StandInOf<servicos::ZOVA_A_ClientAnim::clsClientAnim> final
    : public CustomerScreenStandIn<servicos::ZOVA_A_ClientAnim::clsClientAnim> {
 public:
  using CustomerScreenStandIn::CustomerScreenStandIn;

  std::int16_t AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_A_ClientHist::clsHistDeVendas> final
    : public CustomerScreenStandIn<servicos::ZOVA_A_ClientHist::clsHistDeVendas> {
 public:
  using CustomerScreenStandIn::CustomerScreenStandIn;

  void DataInicialDoHistorico(string_view v) override { Set(__func__, v); }
  void AbrirFichaExibicao() override { Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_A_Orcamentos::clsOrcamentos> final
    : public CustomerScreenStandIn<servicos::ZOVA_A_Orcamentos::clsOrcamentos> {
 public:
  using CustomerScreenStandIn::CustomerScreenStandIn;

  void CodigoDoAnimal(std::int32_t v) override { Set(__func__, v); }
  void NomeDoAnimal(string_view v) override { Set(__func__, v); }
  void AbrirFicha() override { Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_A_Produtos::clsProdutos> final
    : public ScreenStandIn<servicos::ZOVA_A_Produtos::clsProdutos> {
 public:
  using ScreenStandIn::ScreenStandIn;

  void CodigoInterno(double v) override { Set(__func__, v); }
  void Nome(string_view v) override { Set(__func__, v); }
  std::int16_t AbrirFichaDeCadastroDeNCM() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_A_RelFin::clsRelFin> final
    : public ScreenStandIn<servicos::ZOVA_A_RelFin::clsRelFin> {
 public:
  using ScreenStandIn::ScreenStandIn;

  void ImprimirNotaPromissoria(string_view a, base::DateTime b, base::Currency c, double d,
                               bool& e) override {
    Call(__func__, a, b, c, d, e);
  }
};

/// The dimming is told as an event.
template <>
class StandInOf<servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro> final
    : public StandInFor<servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro> {
 public:
  using StandInFor::StandInFor;

  void Aplicar(std::int32_t& window, std::int16_t& intensity) override {
    Call(__func__, window, intensity);
    platform::Desktop::Current().Dim(window, intensity);
  }
  void Remover(std::int32_t& window) override {
    Call(__func__, window);
    platform::Desktop::Current().Undim(window);
  }
};

/// The error viewer tells an event and does not keep the operator.
template <>
class StandInOf<servicos::ZOVA_A_MsgErro::clsMensagem> final
    : public StandInFor<servicos::ZOVA_A_MsgErro::clsMensagem> {
 public:
  explicit StandInOf(StandIns& all) : StandInFor(all), all_(all) {}

  void Exibir(std::int32_t number, string_view description, string_view location,
              string_view application) override {
    Call(__func__, number, description, location, application);
    all_.TellError(number, description, location);
  }

 private:
  StandIns& all_;
};

/// Nothing happens for a class of another list.
template <class... Contracts>
void RegisterOne(StandIns& all, string_view className, servicos::Lista<Contracts...>) {
  ((className == Contracts::kIdentificador ? RegisterAll<StandInOf<Contracts>>(all) : void()), ...);
}

}  // namespace

void RegisterScreenStandIns(StandIns& all) {
  RegisterEach<StandInOf>(all, servicos::TelasIrmas());
}

void RegisterEffectStandIns(StandIns& all) {
  RegisterEach<StandInOf>(all, servicos::Efeitos());
}

void RegisterSiblingStandIn(StandIns& all, std::string_view className) {
  RegisterOne(all, className, servicos::TelasIrmas());
  RegisterOne(all, className, servicos::Efeitos());
}

}  // namespace roteiro
