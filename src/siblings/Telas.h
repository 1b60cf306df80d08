#pragma once

#include <memory>
#include <string_view>

#include "frame/servicos/Servico.h"
#include "siblings/Sessao.h"

/// One maker for each sibling screen of the contract. The classes themselves are known in their own
/// files alone.
namespace siblings {

using TelaNova = std::unique_ptr<servicos::Servico>;

TelaNova NovaClsClientAnim();
TelaNova NovaClsFundoEscuro();
TelaNova NovaClsHistDeVendas();
TelaNova NovaClsMensagem();
TelaNova NovaClsOrcamentos();
TelaNova NovaClsProdutos();
TelaNova NovaClsRelFin();

/// Accepts what every sibling screen is given. They live in the module's own process and use its
/// session and its title.
template <class Contrato>
class TelaComum : public Contrato {
 public:
  void DadosDoUsuario(const base::Record*) override {}
  void NomeDaAplicacao(std::string_view) override {}
};

/// Keeps whom the screen is about.
template <class Contrato>
class TelaDeCliente : public TelaComum<Contrato> {
 public:
  void CodigoDoCliente(double codigo) override { cliente_.codigo = codigo; }
  void ApelidoOuNomeFantasiaDoCliente(std::string_view apelido) override {
    cliente_.apelido = apelido;
  }
  void NomeOuRazaoSocialDoCliente(std::string_view nome) override { cliente_.nome = nome; }

 protected:
  Cliente cliente_;
};

}  // namespace siblings
