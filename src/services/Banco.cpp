#include "services/Banco.h"

#include <algorithm>
#include <exception>

#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"
#include "services/venda/Registros.h"
#include "services/venda/Travas.h"

namespace services {

Banco::Banco(std::unique_ptr<Session> sessao, const base::Clock& relogio, std::string computador,
             std::string marca)
    : sessao_(std::move(sessao)),
      relogio_(relogio),
      estacao_{computador.empty() ? "N" : std::move(computador), std::move(marca)},
      registros_(std::make_unique<services::Registros>(*this)) {
  sessao_->OnReconnected([this] { TratarPendente(); });
}

Banco::~Banco() = default;

void Banco::SessaoDoUsuario(const base::Record* dados) {
  if (dados != sessaoDoUsuario_) EsquecerConsentimento();
  sessaoDoUsuario_ = dados;
}

const base::Record* Banco::Consentimento() const {
  constexpr double kSegundosDeValidade = 15 * 60;
  const bool vale = Decorridos() - consentidoEm_ <= kSegundosDeValidade;
  return vale ? consentimento_.get() : nullptr;
}

void Banco::Consentir(std::shared_ptr<const base::Record> usuario) {
  consentimento_ = std::move(usuario);
  consentidoEm_ = Decorridos();
}

void Banco::Avisar(const std::string& frase) {
  if (aoAvisar_) aoAvisar_(frase);
}

void Banco::LiberarDepois(std::int32_t codigo, const services::Estacao& estacao) {
  NaoLiberar(codigo);
  liberacoes_.push_back({codigo, estacao});
}

void Banco::NaoLiberar(std::int32_t codigo) {
  std::erase_if(liberacoes_, [codigo](const Liberacao& each) { return each.codigo == codigo; });
}

void Banco::LembrarRegistros(const std::string& pasta, std::string_view endereco) {
  registros_->Lembrar(pasta, endereco);
}

bool Banco::TemPendente() const {
  return !liberacoes_.empty() || registros_->HaDuvida() || registros_->HaNotaVista();
}

void Banco::CuidarDoPendente() noexcept {
  if (usos_ > 0) return;
  registros_->ApagarNotaVista();
  if (!TemPendente()) return;
  const Uso uso(*this);
  // A connection that is made again does the work by itself.
  if (sessao_->IsConnected() || sessao_->TryToReconnect()) TratarPendente();
}

void Banco::CuidarPelaUltimaVez() noexcept {
  aoAvisar_ = {};
  correrEventos_ = {};
  sessao_->WhileWaiting({});
  CuidarDoPendente();
}

void Banco::TratarPendente() noexcept {
  if (tratando_ || !TemPendente()) return;
  tratando_ = true;
  try {
    registros_->Apurar();
    LiberarClientes();
  } catch (const std::exception&) {
    // Still away: another time.
  }
  tratando_ = false;
}

void Banco::LiberarClientes() {
  while (!liberacoes_.empty()) {
    const Liberacao proxima = liberacoes_.front();
    try {
      DestravarCliente(*this, proxima.codigo, proxima.estacao);
    } catch (const Refusal&) {
      // Another workstation serves them by now.
    }
    NaoLiberar(proxima.codigo);
  }
}

}  // namespace services
