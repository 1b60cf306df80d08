#include "base/Record.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace base {
namespace {

char LowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, LowerAscii, LowerAscii);
}

}  // namespace

void RecordSet::Append(std::vector<Value> row) {
  if (row.size() != names_.size()) throw RuntimeError(Fault::kInvalidArgument);
  rows_.push_back(std::move(row));
}

const std::string& RecordSet::FieldName(std::int32_t index) const {
  if (index < 0 || index >= FieldCount()) throw RuntimeError(Fault::kIndexOutOfRange);
  return names_[static_cast<std::size_t>(index)];
}

const Value& RecordSet::Fields(std::string_view name) const {
  const auto found =
      std::ranges::find_if(names_, [&](const std::string& each) { return SameName(each, name); });
  if (found == names_.end()) throw RuntimeError(Fault::kIndexOutOfRange);
  return Fields(static_cast<std::int32_t>(found - names_.begin()));
}

const Value& RecordSet::Fields(std::int32_t index) const {
  if (Eof()) throw RuntimeError(Fault::kInvalidArgument);
  if (index < 0 || index >= FieldCount()) throw RuntimeError(Fault::kIndexOutOfRange);
  return rows_[at_][static_cast<std::size_t>(index)];
}

void RecordSet::MoveNext() {
  if (Eof()) throw RuntimeError(Fault::kInvalidArgument);
  ++at_;
}

std::string RecordSet::GetString(std::string_view column, std::string_view row) {
  std::string text;
  for (; !Eof(); ++at_) {
    for (std::size_t i = 0; i < rows_[at_].size(); ++i) {
      if (i != 0) text += column;
      text += ToText(rows_[at_][i]);
    }
    text += row;
  }
  return text;
}

}  // namespace base
