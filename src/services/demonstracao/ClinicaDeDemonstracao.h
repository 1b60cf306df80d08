#pragma once

#include "base/DateTime.h"
#include "services/banco/Session.h"

/// The parts of the demonstration clinic, in the order in which they are written.
namespace services::demonstracao {

/// Company, registers, users, employees.
void EscreverCadastros(Session& session);
/// Customers with their animals, discounts, limits and credit.
void EscreverClientes(Session& session, base::DateTime agora);
/// Products and services.
void EscreverItens(Session& session);
/// Open pre-sale lines, and debts some of which are overdue.
void EscreverPendencias(Session& session, base::DateTime agora);
/// Estimates: one that is good, one that has lapsed, one that was cancelled.
void EscreverOrcamentos(Session& session, base::DateTime agora);

}  // namespace services::demonstracao
