#include "platform/ReportBlock.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "base/Text.h"
#include "platform/ReportLines.h"

namespace platform::reports {
namespace {

using Kind = ReportControl::Kind;

bool HasCode(const ReportSection& section, std::string_view code) {
  return std::ranges::any_of(section.Controls(), [&](const ReportControl* each) {
    if (each->GetKind() != Kind::kLabel || !each->Visible()) return false;
    const auto& label = static_cast<const ReportLabel&>(*each);
    return label.HasCodes() && label.Caption().find(code) != std::string::npos;
  });
}

std::string TwoDigits(int value) {
  return (value < 10 ? "0" : "") + std::to_string(value);
}

/// What a letter behind a percent sign stands for; nothing when it is no code.
std::optional<std::string> MeaningOf(char letter, const Codes& codes) {
  switch (letter) {
    case 'p':
      return std::to_string(codes.page);
    case 'P':
      return std::to_string(codes.pages);
    case 'd':
      return base::Format(codes.now, base::DateMask::kDayMonthYear);
    case 't':
      return TwoDigits(codes.now.Hour()) + ":" + TwoDigits(codes.now.Minute());
    case '%':
      return "%";
    default:
      return std::nullopt;
  }
}

std::string Decoded(const std::string& words, const Codes& codes) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    std::optional<std::string> meaning;
    if (words[i] == '%' && i + 1 < words.size()) meaning = MeaningOf(words[i + 1], codes);
    text += meaning.value_or(std::string(1, words[i]));
    if (meaning) ++i;
  }
  return text;
}

bool Says(const ReportControl& control) {
  const Kind kind = control.GetKind();
  return kind == Kind::kLabel || kind == Kind::kText || kind == Kind::kSum;
}

PrintedRule::Kind RuleOf(Kind kind) {
  if (kind == Kind::kBox) return PrintedRule::Kind::kBox;
  return kind == Kind::kBar ? PrintedRule::Kind::kBar : PrintedRule::Kind::kLine;
}

std::string WordsOf(const ReportControl& control, const std::string& filled, const Codes& codes) {
  if (control.GetKind() != Kind::kLabel) return filled;
  const auto& label = static_cast<const ReportLabel&>(control);
  return label.HasCodes() ? Decoded(label.Caption(), codes) : label.Caption();
}

std::vector<std::string> LinesOf(const ReportControl& control, const std::string& words,
                                 const TextMeasure& measure) {
  std::vector<std::string> lines;
  const LineFitter fitter(measure, control.font, control.Width());
  const bool isWhole = control.align == ReportAlign::kRight;
  std::vector<std::string> own = OwnLines(words);
  if (control.canGrow) {
    for (const std::string& line : own) fitter.Wrap(line, !isWhole, lines);
    return lines;
  }
  // A renderer's lines may be a little higher than those that the height was made for.
  const std::int32_t lineHeight = measure.LineHeight(control.font);
  const auto room = static_cast<std::size_t>(
      std::max(1, (control.Height() + lineHeight / 2) / std::max(1, lineHeight)));
  for (std::size_t i = 0; i < std::min(own.size(), room); ++i) {
    const bool goesOn = i + 1 == room && own.size() > room;
    lines.push_back(isWhole && !goesOn ? own[i] : fitter.Cut(own[i], goesOn));
  }
  return lines;
}

/// Lays out one section: what grows pushes down all that stands below it, side by side or not, so
/// that rows stay rows.
class BlockMaker {
 public:
  BlockMaker(const Filling& filling, const Codes& codes, const TextMeasure& measure)
      : section_(*filling.section), measure_(measure) {
    const auto& controls = section_.Controls();
    block_.said.name = section_.Name();
    for (std::size_t i = 0; i < controls.size(); ++i) {
      if (!controls[i]->Visible()) continue;
      std::string words;
      if (Says(*controls[i])) {
        words = WordsOf(*controls[i], filling.words[i], codes);
        block_.said.controls.emplace_back(
            controls[i]->Name(), base::Replace(base::Replace(words, "\r\n", "\n"), "\r", "\n"));
      }
      shown_.push_back({controls[i], std::move(words)});
    }
    std::ranges::stable_sort(shown_, {}, [](const auto& each) { return each.first->Top(); });
  }

  Block Make() {
    for (const auto& [control, words] : shown_) {
      if (Says(*control)) AddText(*control, words);
    }
    for (const auto& [control, words] : shown_) {
      if (!Says(*control)) AddRule(*control);
    }
    const std::int32_t height = section_.Height();
    block_.height = std::max(block_.height, height + PushAt(height));
    return std::move(block_);
  }

 private:
  struct Grown {
    std::int32_t top, bottom;  ///< As designed.
    std::int32_t by;           ///< How much farther down it ends.
  };

  std::int32_t PushAt(std::int32_t y) const {
    std::int32_t by = 0;
    for (const Grown& each : grown_) {
      if (each.top < y && each.bottom <= y) by = std::max(by, each.by);
    }
    return by;
  }

  void AddText(const ReportControl& control, const std::string& words) {
    const std::int32_t lineHeight = measure_.LineHeight(control.font);
    const std::int32_t push = PushAt(control.Top());
    const std::int32_t top = control.Top() + push;
    std::int32_t y = top;
    for (std::string& line : LinesOf(control, words, measure_)) {
      PrintedText text{
          control.Left(), y, control.Width(), lineHeight, std::move(line), control.font,
          control.align};
      if (text.align == ReportAlign::kRight) {
        const std::int32_t over = measure_.Width(text.text, text.font) - text.width;
        text.left -= std::max(over, 0);
        text.width += std::max(over, 0);
      }
      y += lineHeight;
      if (!text.text.empty()) block_.texts.push_back(std::move(text));
    }
    const std::int32_t growth = control.canGrow ? std::max(0, y - top - control.Height()) : 0;
    if (push + growth > 0) {
      grown_.push_back({control.Top(), control.Top() + control.Height(), push + growth});
    }
    block_.height = std::max(block_.height, std::max(y, top + control.Height()));
  }

  void AddRule(const ReportControl& control) {
    const std::int32_t top = control.Top() + PushAt(control.Top());
    const std::int32_t end = control.Top() + control.Height();
    const std::int32_t bottom = control.Height() == 0 ? top : end + PushAt(end);
    block_.rules.push_back(
        {control.Left(), top, control.Width(), bottom - top, RuleOf(control.GetKind())});
    block_.height = std::max(block_.height, bottom);
  }

  const ReportSection& section_;
  const TextMeasure& measure_;
  std::vector<std::pair<const ReportControl*, std::string>> shown_;  ///< From the top down.
  std::vector<Grown> grown_;
  Block block_;
};

}  // namespace

bool ShowsPageNumber(const ReportSection& section) {
  return HasCode(section, "%p") || ShowsPageCount(section);
}

bool ShowsPageCount(const ReportSection& section) {
  return HasCode(section, "%P");
}

Block LayOut(const Filling& filling, const Codes& codes, const TextMeasure& measure) {
  return BlockMaker(filling, codes, measure).Make();
}

std::int32_t WholeLines(const Block& block, std::int32_t height) {
  std::int32_t end = height;
  const auto isCut = [&end](const PrintedText& each) {
    return each.top < end && each.top + each.height > end;
  };
  for (auto cut = std::ranges::find_if(block.texts, isCut); cut != block.texts.end();
       cut = std::ranges::find_if(block.texts, isCut)) {
    end = cut->top;
  }
  return std::max(end, 0);
}

std::int32_t FirstLine(const Block& block) {
  if (block.texts.empty()) return std::max(block.height, 1);
  const auto bottom = [](const PrintedText& each) { return each.top + each.height; };
  std::int32_t end = bottom(*std::ranges::min_element(block.texts, {}, bottom));
  for (bool moved = true; moved;) {
    moved = false;
    for (const PrintedText& each : block.texts) {
      if (each.top >= end || bottom(each) <= end) continue;
      end = bottom(each);
      moved = true;
    }
  }
  return std::max(end, 1);
}

Block TakeUpper(Block& block, std::int32_t height) {
  Block upper, lower;
  upper.height = std::min(height, block.height);
  for (PrintedText& each : block.texts) {
    const bool isUpper = each.top < height;
    if (!isUpper) each.top -= height;
    (isUpper ? upper : lower).texts.push_back(std::move(each));
  }
  for (PrintedRule each : block.rules) {
    const std::int32_t bottom = each.top + each.height;
    if (each.top < height) {
      PrintedRule& part = upper.rules.emplace_back(each);
      part.height = std::min(bottom, height) - each.top;
      if (bottom <= height) continue;
    }
    const std::int32_t top = std::max(each.top, height);
    each.top = top - height;
    each.height = bottom - top;
    lower.rules.push_back(each);
  }
  lower.height = std::max(block.height - height, 0);
  upper.said = std::exchange(block.said, {});
  block = std::move(lower);
  return upper;
}

}  // namespace platform::reports
