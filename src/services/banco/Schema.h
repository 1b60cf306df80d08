#pragma once

#include "services/banco/Session.h"

namespace services {

/// The version of the schema that this program works on.
int CurrentSchema();

/// The version of the schema in a database: 0 when it holds no table at all, -1 when it holds
/// tables of something else. Throws DatabaseError.
int SchemaIn(Session& session);

/// Brings the schema up to date in one transaction, whatever two computers do at once; a newer one
/// is left as it is. Throws DatabaseError.
void Migrate(Session& session);

}  // namespace services
