#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/GradeLida.h"

namespace bench {

/// What the checkout hands over for a sale: so many products at the same price, a part paid by card
/// or on credit, the rest in cash with change.
class Checkout {
 public:
  struct Sale {
    int lines = 0;
    std::int32_t cashRegister = 0;
    std::int32_t customer = 2;
    bool onCredit = false;
  };

  explicit Checkout(const Sale& sale);

  std::int32_t CashRegister() const { return sale_.cashRegister; }
  /// By how much the register's money grows, in ten-thousandths.
  std::int64_t Drawer() const;
  /// Registers the sale once more; its number. Throws std::runtime_error with the service's words.
  std::int32_t Register() const;

 private:
  class Grid final : public base::GradeLida {
   public:
    explicit Grid(std::vector<std::vector<std::string>> rows) : rows_(std::move(rows)) {}
    std::int32_t Rows() const override { return static_cast<std::int32_t>(rows_.size()); }
    std::int32_t Cols() const override { return static_cast<std::int32_t>(rows_.front().size()); }
    const std::string& TextMatrix(std::int32_t row, std::int32_t col) const override {
      return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(col));
    }

   private:
    std::vector<std::vector<std::string>> rows_;
  };

  static Grid Items(int lines);
  static Grid Tenders(base::Currency net, bool onCredit);

  Sale sale_;
  base::Currency net_;
  Grid items_;
  Grid tenders_;
};

}  // namespace bench
