#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "services/troca/PastaDeTroca.h"
#include "services/venda/RegistrosDoCupom.h"

namespace services {

class Banco;
class Session;
struct Venda;

// Every coupon that is asked for is a row of `cupons` before its file leaves, and stays one. Its
// state, in this order:
//
//   enviado     the file was let out; no answer is known
//   emitido     the application answered with a key, or the checkout handed one over
//   vendido     the key stands in the sale whose number is here
//   recusado    the application said no, for the reason in `nota`
//   retirado    the file was taken back before anybody took it
//   encerrado   somebody looked into it and closed it, for the reason in `nota`
//
// The first two are open: a coupon may exist without a sale. One of them may bear the number of a
// sale that was registered without its key. Everything here throws DatabaseError.

/// Writes the row of a coupon whose file is about to leave, in a transaction of its own; its
/// number.
std::int32_t AbrirCupom(Banco& banco, const RegistrosDoCupom& registros,
                        const PastaDeTroca::Arquivos& arquivos);

/// Whose coupons: those of this workstation, or all that the database knows.
enum class Alcance { kEstaEstacao, kTodas };

/// Looks for the answers to the open coupons, and to those taken back in the last day, and writes
/// what it finds.
void CompletarCupons(Banco& banco, Alcance alcance);

/// A coupon that may serve the same sale again.
struct CupomIgual {
  std::int32_t numero = 0;
  bool temChave = false;
  base::DateTime quando;
  std::int32_t codigoDoCliente = 0;
  std::string consumidor, chave;
  PastaDeTroca::Arquivos arquivos;
};
/// The open coupons of this workstation since a moment that are for the same lines and tenders at
/// the same register and have no sale, or one that is in doubt; those with a key first, then the
/// latest first.
std::vector<CupomIgual> CuponsIguais(Banco& banco, const RegistrosDoCupom& registros,
                                     base::DateTime desde);

/// The coupons of this workstation without an answer, and without a sale that would want one.
struct CupomLargado {
  std::int32_t numero = 0;
  std::string envio;
};
std::vector<CupomLargado> CuponsSemResposta(Banco& banco);
void MarcarRetirado(Banco& banco, std::int32_t numero);

/// Runs the registration of a sale. One that does not end well leaves the key that was handed over
/// with its coupon, and the operator is told that it can still be used; the answer of the
/// application in the archive makes up for what cannot be written now.
void GuardandoCupom(Banco& banco, const Venda& venda, const std::function<void()>& registrar);

/// The coupon that a sale was to have: that of the last export, where it lists the products of the
/// sale; 0 for none.
std::int32_t CupomDaVenda(Banco& banco, const Venda& venda);

/// Within the transaction of a sale: its coupon is the sale's from now on.
void VincularCupom(Session& session, const Venda& venda, std::int32_t numeroDaVenda);

}  // namespace services
