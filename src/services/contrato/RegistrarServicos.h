#pragma once

#include <functional>
#include <memory>

namespace services {

class Banco;

/// Puts every service that stands over the database into the registry of frame/servicos, from where
/// screens create them by identifier. The registry keeps the database open until it forgets them
/// (servicos::EsquecerTodos).
///
/// `correrEventos` lets the screens live while a password is verified, which takes a tenth of a
/// second; it is called over and over meanwhile, and what it throws ends the operation. Without it
/// the operation blocks.
///
/// What the contract leaves open is settled thus for all of them:
/// - a search by part of a name gives at most 5,000 rows, in the order of the names, and in a pick
///   list what has just that code before them; when there are more, the status is a success and
///   DescricaoDaFalha says so in a sentence, else it is empty;
/// - fewer than three characters find nobody by name, only by code;
/// - a fault of the database has the number of its services::Trouble (DatabaseError.h).
void RegistrarServicos(const std::shared_ptr<Banco>& banco,
                       std::function<void()> correrEventos = {});

}  // namespace services
