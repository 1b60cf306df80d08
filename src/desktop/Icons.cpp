#include "desktop/Icons.h"

#include <QPen>
#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace desktop::icons {
namespace {

constexpr double kField = 20;
constexpr double kStroke = 1.5;

/// A name and its outline: M, L, H, V, C and Z as in drawings of the web, absolute; O is a circle
/// by its centre and radius.
struct Picture {
  std::string_view name, outline;
};
constexpr std::array kPictures{
    Picture{"register-open",
            "M4.5 9.5 H15.5 V13.5 H4.5 Z M6.5 9.5 V6.5 M5 3 H12 V6.5 H5 Z M2.5 13.5 H17.5 V17.5 "
            "H2.5 Z M8.7 15.5 H11.3"},
    Picture{"register-close",
            "M3.5 9.5 H16.5 V17 H3.5 Z M6.5 9.5 V6.5 M5 3 H12 V6.5 H5 Z M3.5 13.2 H16.5 M8.7 15.2 "
            "H11.3"},
    Picture{"money-in", "M10 2.8 V11.2 M6.4 7.8 L10 11.4 L13.6 7.8 M3 12 V16.8 H17 V12"},
    Picture{"money-out", "M10 12.2 V3.2 M6.4 6.6 L10 3 L13.6 6.6 M3 12 V16.8 H17 V12"},
    Picture{"cancel", "O 10 10 7.2 M7.4 7.4 L12.6 12.6 M12.6 7.4 L7.4 12.6"},
    Picture{"undo",
            "M7.2 4 L3.4 7.8 L7.2 11.6 M3.4 7.8 H11.8 C14.8 7.8 16.8 9.7 16.8 12.3 C16.8 14.9 14.8 "
            "16.8 11.8 16.8 H8.2"},
    Picture{
        "credit",
        "M2.5 5 H17.5 V15.5 H2.5 Z M2.5 8.2 H17.5 M5.2 12.3 H8 M13.6 10.6 V14 M11.9 12.3 H15.3"},
    Picture{"debts",
            "M9.5 17.5 H4.5 V2.5 H11.2 L14.5 5.8 V8 M11 2.7 V6 H14.3 M7.2 9 H10 M7.2 12.2 H8.6 O "
            "14 14 3.7 M14 12.2 V14.2 L15.3 15"},
    Picture{"history",
            "M3.6 7.2 C4.8 4.4 7.2 2.8 10 2.8 C14 2.8 17.2 6 17.2 10 C17.2 14 14 17.2 10 17.2 C6.6 "
            "17.2 3.8 15 3 11.8 M3.2 3.4 L3.5 7.3 L7.3 6.9 M10 6.2 V10.2 L12.8 11.8"},
    Picture{"price", "M3 3 H9.8 L17.3 10.5 L10.5 17.3 L3 9.8 Z O 6.7 6.7 1.1"},
    Picture{
        "estimate",
        "M7.5 4 H4.5 V17.5 H15.5 V4 H12.5 M7.5 2.5 H12.5 V5.6 H7.5 Z M7.5 9.6 H12.5 M7.5 13 H11"},
    Picture{"report", "M3 17 H17 M5.8 16.6 V11 M10 16.6 V4 M14.2 16.6 V8"},
    Picture{"receipt",
            "M4.8 2.5 H15.2 V17.5 L12.6 15.8 L10 17.5 L7.4 15.8 L4.8 17.5 Z M7.8 6.6 H12.2 M7.8 "
            "10.2 H12.2"},
    Picture{"magnifier", "O 8.6 8.6 5.2 M12.5 12.5 L16.8 16.8"},
    Picture{"chevron", "M5.5 7.8 L10 12.3 L14.5 7.8"},
    Picture{"check", "M4.2 10.6 L8.3 14.7 L15.8 5.8"},
    Picture{"close", "M5 5 L15 15 M15 5 L5 15"},
    Picture{"info", "M10 9 V14.4 M10 5.6 V5.7"},
    Picture{"stop", "M6 6 L14 14 M14 6 L6 14"},
    Picture{"question", "M7 7.6 C7 3.9 13 3.9 13 7.6 C13 9.9 10 9.7 10 12 M10 15 V15.1"},
    Picture{"warning", "M10 3 L17.6 16.6 H2.4 Z M10 8 V12 M10 14.3 V14.4"},
    Picture{"person", "O 10 6.4 3.4 M3.6 17.2 C3.9 13.2 6.6 12 10 12 C13.4 12 16.1 13.2 16.4 17.2"},
    Picture{"paw",
            "O 4.6 9.4 1.5 O 8 5.2 1.6 O 12 5.2 1.6 O 15.4 9.4 1.5 M10 9.6 C7.6 9.6 5.6 12.2 5.6 "
            "14.4 C5.6 17.4 8.2 16.4 10 16.4 C11.8 16.4 14.4 17.4 14.4 14.4 C14.4 12.2 12.4 9.6 10 "
            "9.6 Z"},
    Picture{"sort-up", "M10 14.5 V5.8 M6.4 9.2 L10 5.6 L13.6 9.2"},
    Picture{"sort-down", "M10 5.5 V14.2 M6.4 10.8 L10 14.4 L13.6 10.8"},
    Picture{"printer",
            "M5.8 7 V2.8 H14.2 V7 M5.8 14.2 H3 V7 H17 V14.2 H14.2 M5.8 11.4 H14.2 V17.2 H5.8 Z "
            "M14.2 9.2 V9.3"},
    Picture{"save",
            "M4.5 2.5 H12 L15.5 6 V17.5 H4.5 Z M10 7.6 V13.6 M7.4 11.2 L10 13.8 L12.6 11.2"},
    Picture{"smaller", "O 8.6 8.6 5.2 M12.5 12.5 L16.8 16.8 M6.2 8.6 H11"},
    Picture{"larger", "O 8.6 8.6 5.2 M12.5 12.5 L16.8 16.8 M6.2 8.6 H11 M8.6 6.2 V11"},
    Picture{"page-width",
            "M2.8 3 V17 M17.2 3 V17 M5.4 10 H14.6 M7.8 7.4 L5.2 10 L7.8 12.6 M12.2 7.4 L14.8 10 "
            "L12.2 12.6"},
    Picture{"whole-page",
            "M4.5 2.5 H15.5 V17.5 H4.5 Z M7.4 6.4 H12.6 M7.4 9.4 H12.6 M7.4 12.4 "
            "H10.4"},
    Picture{"first", "M5.4 4.6 V15.4 M14.4 4.8 L9 10 L14.4 15.2"},
    Picture{"previous", "M12.6 4.8 L7.2 10 L12.6 15.2"},
    Picture{"next", "M7.4 4.8 L12.8 10 L7.4 15.2"},
    Picture{"last", "M14.6 4.6 V15.4 M5.6 4.8 L11 10 L5.6 15.2"},
};

/// The keys that the screens give pictures, and the picture of each.
constexpr std::array kKeys{
    std::pair<std::string_view, std::string_view>{"menu_caixa_Abertura", "register-open"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Fechamento", "register-close"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Entradas", "money-in"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Saidas", "money-out"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_CancelarVenda", "cancel"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_DesfazerCancelamento", "undo"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_CreditoDoCliente", "credit"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_DebitosDoCliente", "debts"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_ConsultarHistoricoDeVendas",
                                                  "history"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_ConsultarPrecos", "price"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Orcamentos", "estimate"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Relatorios", "report"},
    std::pair<std::string_view, std::string_view>{"menu_caixa_Comprovantes", "receipt"},
    std::pair<std::string_view, std::string_view>{"Classificacao_Crescente", "sort-up"},
    std::pair<std::string_view, std::string_view>{"Classificacao_Decrescente", "sort-down"},
};

/// Reads an outline of the table above.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  QPainterPath Read() {
    QPainterPath path;
    while (SkipBlanks()) {
      const char verb = text_.front();
      text_.remove_prefix(1);
      Follow(path, verb);
    }
    return path;
  }

 private:
  bool SkipBlanks() {
    text_.remove_prefix(std::min(text_.find_first_not_of(' '), text_.size()));
    return !text_.empty();
  }

  double Number() {
    SkipBlanks();
    double value = 0;
    const auto [end, failed] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
    text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
    return value;
  }
  QPointF Point() {
    const double x = Number();
    return {x, Number()};
  }

  void Follow(QPainterPath& path, char verb) {
    const QPointF here = path.currentPosition();
    switch (verb) {
      case 'M':
        path.moveTo(Point());
        break;
      case 'L':
        path.lineTo(Point());
        break;
      case 'H':
        path.lineTo(Number(), here.y());
        break;
      case 'V':
        path.lineTo(here.x(), Number());
        break;
      case 'C': {
        const QPointF first = Point();
        const QPointF second = Point();
        path.cubicTo(first, second, Point());
        break;
      }
      case 'O': {
        const QPointF centre = Point();
        const double radius = Number();
        path.addEllipse(centre, radius, radius);
        break;
      }
      default:
        path.closeSubpath();
    }
  }

  std::string_view text_;
};

}  // namespace

const QPainterPath& Outline(std::string_view name) {
  static std::map<std::string, QPainterPath, std::less<>> known;
  if (const auto found = known.find(name); found != known.end()) return found->second;
  std::string_view wanted = name;
  for (const auto& [key, picture] : kKeys) {
    if (key == name) wanted = picture;
  }
  const auto picture = std::ranges::find(kPictures, wanted, &Picture::name);
  const QPainterPath path =
      picture == kPictures.end() ? QPainterPath() : Reader(picture->outline).Read();
  return known.emplace(name, path).first->second;
}

bool Draw(QPainter& painter, std::string_view name, const QRectF& box, const QColor& color) {
  const QPainterPath& outline = Outline(name);
  if (outline.isEmpty()) return false;
  const double scale = std::min(box.width(), box.height()) / kField;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(box.center() - QPointF(kField, kField) * scale / 2);
  painter.scale(scale, scale);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(outline);
  painter.restore();
  return true;
}

}  // namespace desktop::icons
