#include "services/venda/Registros.h"

#include <array>
#include <cstdio>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "services/Banco.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Outcome.h"
#include "services/banco/Senhas.h"

namespace services {
namespace {

constexpr double kSegundosParaRepetir = 15 * 60;

std::string Hora(base::DateTime quando) {
  std::array<char, 6> texto{};
  std::snprintf(texto.data(), texto.size(), "%02u:%02u", static_cast<unsigned>(quando.Hour()) % 100,
                static_cast<unsigned>(quando.Minute()) % 100);
  return texto.data();
}

/// The words of a registration in the sentences for the operator.
class Palavras {
 public:
  Palavras(const Registro& registro, std::int32_t numero) : registro_(registro), numero_(numero) {}

  std::string Esta() const {
    const std::string qual =
        registro_.TemNumero() ? "venda " + std::to_string(numero_) : registro_.oQue;
    return Artigo() + qual + " está registrad" + registro_.artigo + '.';
  }
  std::string Ficou() const {
    return Artigo() + Qual() + " ficou registrad" + registro_.artigo + ComNumero() + ". Não " +
           registro_.artigo + " registre de novo.";
  }
  std::string NaoFicou() const {
    return Artigo() + Qual() + " não ficou registrad" + registro_.artigo + ". Registre-" +
           registro_.artigo + " de novo, se ainda for o caso.";
  }
  std::string JaEstava() const {
    const bool feminino = registro_.artigo == 'a';
    return Artigo() + Qual() + " já estava registrad" + registro_.artigo + ComNumero() +
           ", e nada foi registrado agora. Se est" + (feminino ? "a é outra" : "e é outro") +
           " igual, registre-" + registro_.artigo + " de novo.";
  }
  std::string NaoSeSabe() const {
    return "Ainda não se sabe se " + std::string(1, registro_.artigo) + ' ' + Qual() +
           " ficou registrad" + registro_.artigo +
           ", e nada foi registrado agora. Aguarde o banco de dados voltar e tente de novo.";
  }
  std::string EmDuvida() const {
    return "O banco de dados não confirmou a gravação, e ainda não se sabe se " +
           std::string(1, registro_.artigo) + ' ' + registro_.oQue + " ficou registrad" +
           registro_.artigo + ". Quando ele voltar, registre-" + registro_.artigo +
           " de novo: o caixa confere antes e não registra duas vezes.";
  }

 private:
  std::string Artigo() const { return registro_.artigo == 'a' ? "A " : "O "; }
  std::string Qual() const { return registro_.oQue + ", das " + Hora(registro_.quando) + ','; }
  std::string ComNumero() const {
    return registro_.TemNumero() ? " com o número " + std::to_string(numero_) : "";
  }

  const Registro& registro_;
  std::int32_t numero_;
};

}  // namespace

std::string ConteudoDe(const std::vector<Params>& linhas) {
  // The bytes of a number, and of a text its length and its own.
  std::string conteudo;
  const auto anexar = [&](char tipo, std::int64_t numero) {
    conteudo += tipo;
    conteudo.append(reinterpret_cast<const char*>(&numero), sizeof numero);
  };
  for (const Params& linha : linhas) {
    for (const Param& valor : linha) {
      if (const auto* numero = valor.Integer()) {
        anexar('n', *numero);
      } else if (const auto* texto = valor.Text()) {
        anexar('t', static_cast<std::int64_t>(texto->size()));
        conteudo += *texto;
      } else {
        conteudo += '-';
      }
    }
    conteudo += ';';
  }
  return conteudo;
}

void Registros::Lembrar(const std::string& pasta, std::string_view banco) {
  lembrete_.emplace(pasta, banco);
  const auto& deixada = lembrete_->Deixada();
  if (!deixada) return;
  // The same sale again finds the coupon that it had.
  banco_.CupomEmAndamento(deixada->cupom);
  duvida_ = Duvida{
      .registro = {.oQue = deixada->oQue,
                   .artigo = deixada->artigo,
                   .tipo = deixada->tipo,
                   .quando = deixada->quando,
                   .operacao = deixada->operacao,
                   .conteudo = nullptr},
      .conteudo = deixada->conteudo,
      .numero = 0,
      .doubt = {.label = deixada->sessao, .proof = {&ProvaDe(deixada->tipo), {deixada->operacao}}}};
}

void Registros::Anotar(const Registro& novo) {
  concluido_ = false;
  if (!lembrete_) return;
  lembrete_->Anotar({.sessao = banco_.Sessao().Name(),
                     .operacao = novo.operacao,
                     .cupom = novo.TemNumero() ? banco_.CupomEmAndamento() : 0,
                     .tipo = novo.tipo,
                     .artigo = novo.artigo,
                     .quando = novo.quando,
                     .conteudo = Impressao(novo.conteudo()),
                     .oQue = novo.oQue});
}

void Registros::ApagarNotaVista() {
  if (std::exchange(concluido_, false)) lembrete_->Apagar();
}

Standing Registros::Procurar() {
  const Standing standing = banco_.Sessao().FindOut(duvida_->doubt);
  if (standing == Standing::kStands && duvida_->registro.TemNumero() && duvida_->numero == 0) {
    banco_.Sessao().Select(ProvaDe(duvida_->registro.tipo), {duvida_->registro.operacao},
                           [&](const Row& row) { duvida_->numero = row.Number(0); });
  }
  return standing;
}

std::int32_t Registros::Registrar(const Registro& novo, const Gravar& gravar) {
  ultimo_.clear();
  if (const auto numero = JaRegistrado(novo)) {
    ultimo_ = Palavras(novo, *numero).Esta();
    return *numero;
  }
  std::int32_t numero = 0;
  Anotar(novo);
  try {
    gravar(numero);
  } catch (const InDoubt& error) {
    duvida_ = Duvida{.registro = novo,
                     .conteudo = Impressao(novo.conteudo()),
                     .numero = numero,
                     .doubt = error.Which()};
    duvida_->registro.conteudo = nullptr;
    if (lembrete_) lembrete_->Firmar();
    throw base::RuntimeError(static_cast<std::int32_t>(Trouble::kInDoubt),
                             Palavras(novo, numero).EmDuvida() + " (" + error.Detail() + ")");
  } catch (...) {
    Concluir();
    throw;
  }
  Concluir();
  ultimo_ = Palavras(novo, numero).Esta();
  return numero;
}

std::string Registros::AposUltimo(const std::string& falha) const {
  if (ultimo_.empty()) return falha;
  return ultimo_ + ' ' +
         base::Replace(falha, Sentence(Trouble::kConnectionLost),
                       "A conexão com o banco de dados caiu. Aguarde um instante.");
}

void Registros::Apurar() {
  if (!HaDuvida()) return;
  const Standing standing = Procurar();
  if (standing == Standing::kUnknown) return;
  const Palavras palavras(duvida_->registro, duvida_->numero);
  const bool ficou = standing == Standing::kStands;
  const std::string frase = ficou ? palavras.Ficou() : palavras.NaoFicou();
  if (ficou) duvida_->achadaEm = banco_.Decorridos();
  if (!ficou) duvida_.reset();
  Concluir();
  banco_.Avisar(frase);
}

std::optional<std::int32_t> Registros::JaRegistrado(const Registro& novo) {
  if (!duvida_) return std::nullopt;
  const Standing standing = HaDuvida() ? Procurar() : Standing::kStands;
  if (standing == Standing::kUnknown) {
    throw Refusal{.sentence = Palavras(duvida_->registro, duvida_->numero).NaoSeSabe()};
  }
  const Duvida antiga = *std::exchange(duvida_, std::nullopt);
  Concluir();
  const Palavras palavras(antiga.registro, antiga.numero);
  const bool mesma = antiga.conteudo == Impressao(novo.conteudo());
  const bool avisada = antiga.achadaEm.has_value();
  if (standing == Standing::kDoesNotStand) {
    if (!mesma) banco_.Avisar(palavras.NaoFicou());
    return std::nullopt;
  }
  if (mesma && (!avisada || banco_.Decorridos() - *antiga.achadaEm <= kSegundosParaRepetir)) {
    banco_.Avisar(palavras.JaEstava());
    return antiga.numero;
  }
  if (!avisada) banco_.Avisar(palavras.Ficou());
  return std::nullopt;
}

}  // namespace services
