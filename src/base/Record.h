#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Value.h"

namespace base {

/// A record of named fields, such as the session record that the host hands over. Names are
/// compared without regard to case.
class Record {
 public:
  virtual ~Record() = default;
  /// The field of that name; error 9 when there is none.
  virtual Value Field(std::string_view name) const = 0;
};

/// The rows of a selection, with a cursor on one of them. It is made and filled by a service, then
/// shared with the screen, and outlives the service.
class RecordSet : public Record {
 public:
  explicit RecordSet(std::vector<std::string> names) : names_(std::move(names)) {}

  /// Appends a row, one value a field; error 5 when the count differs.
  void Append(std::vector<Value> row);

  std::int32_t RecordCount() const { return static_cast<std::int32_t>(rows_.size()); }
  std::int32_t FieldCount() const { return static_cast<std::int32_t>(names_.size()); }
  /// The name of the field at `index`, counted from 0; error 9 when there is none.
  const std::string& FieldName(std::int32_t index) const;
  /// A field of the current row; error 9 for an unknown field, error 5 with no current row.
  Value Field(std::string_view name) const override { return Fields(name); }
  const Value& Fields(std::string_view name) const;
  const Value& Fields(std::int32_t index) const;

  void MoveFirst() { at_ = 0; }
  void MoveNext();
  bool Eof() const { return at_ >= rows_.size(); }
  /// All rows from the current one on as one text: fields as text, parted by `column`, rows ended
  /// by `row`. The cursor ends behind the last row.
  std::string GetString(std::string_view column = "\t", std::string_view row = "\r");

 private:
  std::vector<std::string> names_;
  std::vector<std::vector<Value>> rows_;
  std::size_t at_ = 0;
};

/// A record set as services give it and screens share it. To look into one that was never set is
/// error 91: a service that breaks its promise is reported like any other fault.
class RecordSetPtr : public std::shared_ptr<RecordSet> {
 public:
  using shared_ptr::shared_ptr;
  RecordSetPtr(std::shared_ptr<RecordSet> set) : shared_ptr(std::move(set)) {}

  RecordSet& operator*() const { return Required(static_cast<const shared_ptr&>(*this)); }
  RecordSet* operator->() const { return &**this; }
};

/// Calls `each()` for every row from the first to the last, the cursor on that row.
template <class Each>
void ForEachRow(RecordSet& rows, Each each) {
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) each();
}

}  // namespace base
