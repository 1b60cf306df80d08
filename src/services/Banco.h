#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Clock.h"
#include "base/Record.h"
#include "services/Estacao.h"

namespace services {

class Registros;
class Session;

/// The clinic's database as one process uses it: one connection with its prepared statements, the
/// clock, the name and mark of this computer, what keeps the screens alive, and what the operator
/// is to hear besides the answers to what they do. The services share it. For one thread.
class Banco {
 public:
  /// `relogio` outlives the database. `computador` is the name under which the module knows this
  /// computer, since the module frees a customer without saying it again; "N" when there is none.
  /// `marca` is that of MarcaDaEstacao; without one, computers of the same name count as one.
  Banco(std::unique_ptr<Session> sessao, const base::Clock& relogio, std::string computador,
        std::string marca = "");
  ~Banco();
  Banco(const Banco&) = delete;
  Banco& operator=(const Banco&) = delete;

  Session& Sessao() { return *sessao_; }
  base::DateTime Agora() const { return relogio_.Now(); }
  /// Seconds that only grow.
  double Decorridos() const { return relogio_.Elapsed(); }
  const std::string& Computador() const { return estacao_.nome; }
  const std::string& Marca() const { return estacao_.marca; }
  const services::Estacao& Estacao() const { return estacao_; }
  /// Lets the events of the screens run that have arrived; it may throw what unwinds them. Empty
  /// where there is no screen to keep alive.
  const std::function<void()>& CorrerEventos() const { return correrEventos_; }
  void CorrerEventos(std::function<void()> eventos) { correrEventos_ = std::move(eventos); }

  /// Tells the operator one sentence or two of what came to light late. Called while an operation
  /// runs: `ouvinte` keeps the words until the screens are at rest. Nothing happens where nobody
  /// listens.
  void Avisar(const std::string& frase);
  void AoAvisar(std::function<void(const std::string& frase)> ouvinte) {
    aoAvisar_ = std::move(ouvinte);
  }

  /// The session record that a service was given last, null before; it is the host's, and lives
  /// as long as the host lets it.
  const base::Record* SessaoDoUsuario() const { return sessaoDoUsuario_; }
  void SessaoDoUsuario(const base::Record* dados);
  /// The user who was authenticated last, until what they were asked for is registered, and for 15
  /// minutes at most; null for none. Another session begins without.
  const base::Record* Consentimento() const;
  void Consentir(std::shared_ptr<const base::Record> usuario);
  void EsquecerConsentimento() { consentimento_.reset(); }
  /// The customer that this computer locked last and has not freed since; 0 for none.
  std::int32_t ClienteEmAtendimento() const { return clienteEmAtendimento_; }
  void ClienteEmAtendimento(std::int32_t codigo) { clienteEmAtendimento_ = codigo; }
  /// The coupon that was asked for last, until a sale is registered; 0 for none.
  std::int32_t CupomEmAndamento() const { return cupomEmAndamento_; }
  void CupomEmAndamento(std::int32_t numero) { cupomEmAndamento_ = numero; }

  /// What became of what this program registered.
  services::Registros& Registros() { return *registros_; }
  /// Notes in the settings folder what is being registered, and takes up what a program that was
  /// killed or closed in doubt has left there for the database of this address: it waits to be
  /// looked at, like what is in doubt now.
  void LembrarRegistros(const std::string& pasta, std::string_view endereco);
  /// A customer could not be freed for now: it is done as soon as the database is there, unless
  /// this computer takes them again before.
  void LiberarDepois(std::int32_t codigo, const services::Estacao& estacao);
  void NaoLiberar(std::int32_t codigo);
  /// Whether something waits: a customer to be freed, a registration in doubt, the note of one that
  /// the operator has seen by now.
  bool TemPendente() const;
  /// Takes up what waits, as soon as the database is there; it is also done whenever a connection
  /// was made again. For a host's timer, every few seconds, and at rest alone: within an operation
  /// of a service it does nothing. It may take 10 s, and keeps the screens alive meanwhile.
  void CuidarDoPendente() noexcept;
  /// The same once more, for a host that goes: what waits is forgotten with this program. Nothing
  /// of the host is called any more, and nobody is told.
  void CuidarPelaUltimaVez() noexcept;

  /// One operation of a service.
  class Uso {
   public:
    explicit Uso(Banco& banco) : banco_(banco) { ++banco_.usos_; }
    ~Uso() { --banco_.usos_; }
    Uso(const Uso&) = delete;
    Uso& operator=(const Uso&) = delete;

   private:
    Banco& banco_;
  };

 private:
  struct Liberacao {
    std::int32_t codigo;
    services::Estacao estacao;
  };

  void TratarPendente() noexcept;
  void LiberarClientes();

  std::unique_ptr<Session> sessao_;
  const base::Clock& relogio_;
  services::Estacao estacao_;
  std::function<void()> correrEventos_;
  std::function<void(const std::string&)> aoAvisar_;
  const base::Record* sessaoDoUsuario_ = nullptr;
  std::shared_ptr<const base::Record> consentimento_;
  double consentidoEm_ = 0;  ///< By the clock's seconds.
  std::int32_t clienteEmAtendimento_ = 0;
  std::int32_t cupomEmAndamento_ = 0;
  std::unique_ptr<services::Registros> registros_;
  std::vector<Liberacao> liberacoes_;
  int usos_ = 0;
  bool tratando_ = false;
};

}  // namespace services
