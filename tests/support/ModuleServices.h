#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "base/Record.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "frame/servicos/ZOVA_N_SO.clsObterVersaoDoSO.h"
#include "support/FakeDesktop.h"

namespace support {

/// A record of named fields, such as the session or an authenticated supervisor.
class Fields final : public base::Record {
 public:
  base::Value Field(std::string_view name) const override {
    const auto found = values.find(name);
    if (found == values.end()) throw base::RuntimeError(base::Fault::kIndexOutOfRange);
    return found->second;
  }

  std::map<std::string, base::Value, std::less<>> values;
};

/// The module's surroundings for tests of its screens: a desktop, a session, and the services that
/// a consent and the limit of credit need. An error report that the test did not take fails it.
class Module {
 public:
  Module() {
    frame::valores() = {};
    frame::valores().DadosDoUsuario = &session;
    frame::valores().NomeDaAplicacao = "Caixa";
    frame::valores().HandleDaJanelaPrincipal = 7;
    frame::valores().NumeroDoCaixa = 3;
    frame::valores().LocalDeAtendimentoDoCaixa = "Recepção";
    frame::valores().AlturaOriginalDopicMensagem = 1200;
    frame::valores().LarguraOriginalDopicMensagem = 4500;
    session.values = {{"NomeDeUsuario", "carla"},
                      {"Administrador", false},
                      {"CodigoDoDocumentoComEmissaoPermitida", "0"}};
    RegisterAll();
  }
  ~Module() {
    for (const std::string& error : errors_) ADD_FAILURE() << "error not taken: " << error;
    servicos::EsquecerTodos();
    frame::valores() = {};
  }
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  /// The errors reported since the last call: "13 Text. @ location".
  std::vector<std::string> TakeErrors() { return std::exchange(errors_, {}); }
  std::string TakeError() {
    const std::vector<std::string> errors = TakeErrors();
    EXPECT_EQ(errors.size(), 1U);
    return errors.empty() ? std::string() : errors.front();
  }
  /// From now on the class cannot be created.
  static void Lose(std::string_view identifier) {
    servicos::Registrar(identifier, [] { return std::unique_ptr<servicos::Servico>(); });
  }

  FakeDesktop desktop;
  Fields session;
  /// What operations answer, by member; 0 for one not named.
  std::map<std::string, std::int16_t, std::less<>> results;
  /// What the operator does while operations run, by member.
  std::map<std::string, std::function<void()>, std::less<>> meanwhile;
  std::string refusal = "Recusado pelo serviço.";
  /// The user that authentication finds.
  std::map<std::string, base::Value> supervisor;
  base::Currency limit, used, available;
  /// How many operations were asked for.
  int operations = 0;

 private:
  std::int16_t Operate(std::string_view member) {
    ++operations;
    if (const auto act = meanwhile.find(member); act != meanwhile.end()) act->second();
    const auto found = results.find(member);
    return found == results.end() ? std::int16_t{0} : found->second;
  }

  /// A business service of these tests, with the members that all have.
  template <class Contract>
  class Business : public Contract {
   public:
    explicit Business(Module& module) : module_(module) {}
    void DadosDoUsuario(const base::Record* /*dados*/) override {}
    std::int32_t NumeroDoErro() override { return 1205; }
    std::string DescricaoDoErro() override { return "Banco fora do ar."; }
    std::string LocalDoErro() override { return "servico"; }
    std::string DescricaoDaFalha() override { return module_.refusal; }

   protected:
    Module& module_;
  };

  class Login final : public Business<servicos::ZOVA_N_Login::clsLogin> {
   public:
    using Business::Business;
    void NomeDeUsuario(std::string_view /*nome*/) override {}
    void SenhaDoUsuario(std::string_view /*senha*/) override {}
    std::int16_t Autenticar() override { return module_.Operate("Autenticar"); }
    base::RecordSetPtr ResultadoDaSelecaoEmRecordSet() override {
      std::vector<std::string> names;
      std::vector<base::Value> row;
      for (const auto& [name, value] : module_.supervisor) {
        names.push_back(name);
        row.push_back(value);
      }
      auto rows = std::make_shared<base::RecordSet>(std::move(names));
      rows->Append(std::move(row));
      return rows;
    }
  };

  class Clientes final : public Business<servicos::ZOVA_N_ClientAnim::clsClientes> {
   public:
    using Business::Business;
    std::int16_t RetornarInformacoesDoLimiteDeCredito(double& /*codigo*/, base::Currency& limit,
                                                      base::Currency& used,
                                                      base::Currency& available) override {
      limit = module_.limit;
      used = module_.used;
      available = module_.available;
      return module_.Operate("RetornarInformacoesDoLimiteDeCredito");
    }
  };

  class FundoEscuro final : public servicos::ZOVA_A_EfeitosDeTela::clsFundoEscuro {
   public:
    void Aplicar(std::int32_t& window, std::int16_t& intensity) override {
      platform::Desktop::Current().Dim(window, intensity);
    }
    void Remover(std::int32_t& window) override { platform::Desktop::Current().Undim(window); }
  };

  class Mensagem final : public servicos::ZOVA_A_MsgErro::clsMensagem {
   public:
    explicit Mensagem(Module& module) : module_(module) {}
    void Exibir(std::int32_t number, std::string_view description, std::string_view location,
                std::string_view) override {
      module_.errors_.push_back(std::to_string(number) + " " + std::string(description) + " @ " +
                                std::string(location));
    }

   private:
    Module& module_;
  };

  class VersaoDoSO final : public servicos::ZOVA_N_SO::clsObterVersaoDoSO {
   public:
    std::string ObterversaoDoSO() override { return "Debian"; }
  };

  template <class Service>
  void Register() {
    servicos::Registrar(Service::kIdentificador, [this]() -> std::unique_ptr<servicos::Servico> {
      if constexpr (std::is_constructible_v<Service, Module&>) {
        return std::make_unique<Service>(*this);
      } else {
        return std::make_unique<Service>();
      }
    });
  }
  void RegisterAll() {
    Register<Login>();
    Register<Clientes>();
    Register<FundoEscuro>();
    Register<Mensagem>();
    Register<VersaoDoSO>();
  }

  std::vector<std::string> errors_;
};

}  // namespace support
