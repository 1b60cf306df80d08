#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "base/Record.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
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

/// The module's surroundings for tests of its screens: a desktop, a session, and services that
/// write down what reaches them, a line a member with the type and value of its argument. An error
/// report that the test did not take fails it.
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

  /// What services were told since the last call, in order.
  std::vector<std::string> TakeCalls() { return std::exchange(calls_, {}); }
  std::string TakeCallsAsText() {
    std::string text;
    for (const std::string& call : TakeCalls()) text += call + "\n";
    return text;
  }
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
  std::int32_t saleNumber = 4711;
  /// Members that the services lack.
  std::set<std::string, std::less<>> missing;

 private:
  static std::string Show(std::string_view text) { return '"' + std::string(text) + '"'; }
  static std::string Show(std::int32_t number) { return std::to_string(number); }
  static std::string Show(std::int16_t number) { return std::to_string(number) + "s"; }
  static std::string Show(bool value) { return base::ToText(value); }
  static std::string Show(double number) { return "double " + base::ToText(number); }
  static std::string Show(base::Currency amount) { return "currency " + base::ToText(amount); }
  static std::string Show(base::DateTime date) { return "date " + base::ToText(date); }
  static std::string Show(const base::Record* record) { return record ? "record" : "nothing"; }
  static std::string Show(const base::GradeLida* grid) {
    if (grid == nullptr) return "nothing";
    std::string text = "grid";
    for (std::int32_t row = 1; row < grid->Rows(); ++row) {
      text += " [";
      for (std::int32_t col = 0; col < grid->Cols(); ++col) {
        text += (col > 0 ? "|" : "") + grid->TextMatrix(row, col);
      }
      text += "]";
    }
    return text;
  }

  template <class... Arguments>
  void Note(std::string_view member, const Arguments&... arguments) {
    if (missing.contains(member)) throw base::RuntimeError(base::Fault::kNoSuchMember);
    std::string line(member);
    ((line += " " + Show(arguments)), ...);
    calls_.push_back(std::move(line));
  }
  template <class... Arguments>
  std::int16_t Operate(std::string_view member, const Arguments&... arguments) {
    Note(member, arguments...);
    if (const auto act = meanwhile.find(member); act != meanwhile.end()) act->second();
    const auto found = results.find(member);
    return found == results.end() ? std::int16_t{0} : found->second;
  }

  /// A business service of these tests, with the members that all have.
  template <class Contract>
  class Business : public Contract {
   public:
    explicit Business(Module& module) : module_(module) {}
    void DadosDoUsuario(const base::Record* v) override { module_.Note("DadosDoUsuario", v); }
    std::int32_t NumeroDoErro() override { return 1205; }
    std::string DescricaoDoErro() override { return "Banco fora do ar."; }
    std::string LocalDoErro() override { return "servico"; }
    std::string DescricaoDaFalha() override { return module_.refusal; }

   protected:
    Module& module_;
  };

  class Caixa final : public Business<servicos::ZOVA_N_Caixa::clsCaixa> {
   public:
    using Business::Business;
#define CAIXA_SETTER(Member, Type) \
  void Member(Type v) override {   \
    module_.Note(#Member, v);      \
  }
#define CAIXA_OPERATION(Member)      \
  std::int16_t Member() override {   \
    return module_.Operate(#Member); \
  }
    // clang-format off
    CAIXA_SETTER(NumeroDoCaixa, std::int32_t)
    CAIXA_SETTER(LocalDeAtendimentoDoCaixa, std::string_view)
    CAIXA_SETTER(Operador, std::string_view)
    CAIXA_SETTER(Situacao, std::string_view)
    CAIXA_SETTER(Observacao, std::string_view)
    CAIXA_SETTER(GradeDeItensDaVenda, const base::GradeLida*)
    CAIXA_SETTER(Descricao, std::string_view)
    CAIXA_SETTER(MOEDA, std::int16_t)
    CAIXA_SETTER(ValorDoLancamento, std::string_view)
    CAIXA_SETTER(ValorDoLancamento, double)
    CAIXA_SETTER(ApelidoOuNomeFantasiaDoCliente, std::string_view)
    CAIXA_SETTER(NomeOuRazaoSocialDoCliente, std::string_view)
    CAIXA_SETTER(CodigoDoCliente, std::string_view)
    CAIXA_SETTER(CodigoDoCliente, double)
    CAIXA_SETTER(NumeroDaFichaClinica, std::int32_t)
    CAIXA_SETTER(ValorBruto, base::Currency)
    CAIXA_SETTER(ValorTotalDeDescontos, base::Currency)
    CAIXA_SETTER(ValorLiquido, base::Currency)
    CAIXA_SETTER(Custo, base::Currency)
    CAIXA_SETTER(Comissao, base::Currency)
    CAIXA_SETTER(LucroEmValor, base::Currency)
    CAIXA_SETTER(LucroEmPercentual, base::Currency)
    CAIXA_SETTER(CreditoAnteriorDoCliente, base::Currency)
    CAIXA_SETTER(CreditoAnteriorDoCliente, std::string_view)
    CAIXA_SETTER(CreditoParaOCliente, base::Currency)
    CAIXA_SETTER(Troco, base::Currency)
    CAIXA_SETTER(GradeDePagamentosEfetuados, const base::GradeLida*)
    CAIXA_SETTER(ChaveSAT, std::string_view)
    CAIXA_OPERATION(RegistrarAbertura)
    CAIXA_OPERATION(RegistrarFechamento)
    CAIXA_OPERATION(RegistrarEntrada)
    CAIXA_OPERATION(RegistrarSaida)
    CAIXA_OPERATION(RegistrarPagamento)
    // clang-format on
#undef CAIXA_SETTER
#undef CAIXA_OPERATION
    std::int32_t NumeroDaVenda() override {
      module_.Note("NumeroDaVenda");
      return module_.saleNumber;
    }
  };

  class Login final : public Business<servicos::ZOVA_N_Login::clsLogin> {
   public:
    using Business::Business;
    void NomeDeUsuario(std::string_view v) override { module_.Note("NomeDeUsuario", v); }
    void SenhaDoUsuario(std::string_view v) override { module_.Note("SenhaDoUsuario", v); }
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
    std::int16_t RetornarInformacoesDoLimiteDeCredito(double& code, base::Currency& limit,
                                                      base::Currency& used,
                                                      base::Currency& available) override {
      limit = module_.limit;
      used = module_.used;
      available = module_.available;
      return module_.Operate("RetornarInformacoesDoLimiteDeCredito", code);
    }
  };

  class RelFin final : public servicos::ZOVA_A_RelFin::clsRelFin {
   public:
    explicit RelFin(Module& module) : module_(module) {}
    void DadosDoUsuario(const base::Record* v) override { module_.Note("DadosDoUsuario", v); }
    void NomeDaAplicacao(std::string_view v) override { module_.Note("NomeDaAplicacao", v); }
    void ImprimirNotaPromissoria(std::string_view today, base::DateTime due, base::Currency value,
                                 double customer, bool& preview) override {
      module_.Note("ImprimirNotaPromissoria", today, due, value, customer, preview);
    }

   private:
    Module& module_;
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
    Register<Caixa>();
    Register<Login>();
    Register<Clientes>();
    Register<RelFin>();
    Register<FundoEscuro>();
    Register<Mensagem>();
    Register<VersaoDoSO>();
  }

  std::vector<std::string> calls_;
  std::vector<std::string> errors_;
};

}  // namespace support
