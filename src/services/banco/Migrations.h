#pragma once

#include <span>
#include <string>
#include <string_view>

#include "services/banco/Statement.h"

namespace services {

/// A table whose rows are found by parts of the column nome_busca, the name without case and
/// accents.
struct NamedTable {
  std::string_view table;
  std::string_view key;
};

/// One step of the schema. The text that both engines share names its types in braces:
///
///   {key}      a whole number that names the row, given by the database when none is given
///   {counter}  the same, and never given twice
///   {int}      a whole number of 32 bits
///   {money}    a whole number of 64 bits: an amount, quantity or percentage in ten-thousandths
///   {flag}     0 or 1
///   {text}     UTF-8
///   {moment}   date and time of the clinic
///   {date}     a date
///   {table}    what ends a table: on SQLite, its columns then hold nothing but their types
///   {keyed}    the same for a table that is kept in the order of its primary key
///
/// The indexes for searching by parts of names, which every engine has its own of, follow it.
struct Migration {
  int version = 0;
  std::string_view tables;
  std::span<const NamedTable> named;
};

/// All steps, the oldest first. A step that was released is never changed: a new one follows it.
std::span<const Migration> Migrations();

/// The script of a step for an engine.
std::string ScriptOf(const Migration& migration, Engine engine);

}  // namespace services
