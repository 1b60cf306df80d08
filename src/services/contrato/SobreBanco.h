#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "services/Banco.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"
#include "services/venda/Registros.h"

namespace services {

/// What every service over the database has in common: the members that tell how the last operation
/// went. `Contrato` is its class of the contract.
template <class Contrato>
class SobreBanco : public Contrato {
 public:
  explicit SobreBanco(std::shared_ptr<Banco> banco) : banco_(std::move(banco)) {}

  void DadosDoUsuario(const base::Record* dados) override {
    dados_ = dados;
    banco_->SessaoDoUsuario(dados);
  }
  std::int32_t NumeroDoErro() override { return outcome_.number; }
  std::string DescricaoDoErro() override { return outcome_.description; }
  std::string LocalDoErro() override { return outcome_.place; }
  std::string DescricaoDaFalha() override { return outcome_.sentence; }
  base::RecordSetPtr ResultadoDaSelecaoEmRecordSet() override { return outcome_.rows; }

 protected:
  /// Runs an operation of the family with a numbered status. A fault after a registration does not
  /// leave the operator in doubt of it.
  template <class Operation>
  std::int16_t Numerado(std::string_view membro, Operation operation) {
    const Banco::Uso uso(*banco_);
    const std::int16_t status = outcome_.Of(Contrato::kIdentificador, membro, operation);
    if (status == servicos::kErro) {
      outcome_.description = banco_->Registros().AposUltimo(outcome_.description);
    }
    return status;
  }
  /// Runs a selection of the family that answers true on a fault.
  template <class Operation>
  bool ComFalha(std::string_view membro, Operation operation) {
    return Numerado(membro, operation) != servicos::kSucesso;
  }

  Banco& banco() { return *banco_; }
  Session& sessao() { return banco_->Sessao(); }
  const base::Record* dados() const { return dados_; }

  Outcome outcome_;

 private:
  std::shared_ptr<Banco> banco_;
  const base::Record* dados_ = nullptr;
};

}  // namespace services
