#include "frame/modArredondarCantosDoObjeto.h"

#include "base/Text.h"
#include "frame/servicos/ZOVA_N_SO.clsObterVersaoDoSO.h"

namespace frame {
namespace {

bool CantosRetos() {
  auto sistema = servicos::CriarServico<servicos::ZOVA_N_SO::clsObterVersaoDoSO>();
  return base::Upper(sistema->ObterversaoDoSO()) == "WINDOWS 8";
}

}  // namespace

void ArredondarCantosDoObjeto(platform::PictureBox& painel, std::uint8_t raio) {
  if (!CantosRetos()) painel.CornerRadius = raio;
}

void ArredondarCantosDoObjeto(platform::Form& formulario, std::uint8_t raio) {
  if (!CantosRetos()) formulario.CornerRadius = raio;
}

void EmoldurarFormulario(platform::Form& formulario, platform::Shape& lshpObj) {
  constexpr std::uint8_t kRaioDoFormulario = 5;
  const bool moldura = CantosRetos();
  if (!moldura) formulario.CornerRadius = kRaioDoFormulario;
  lshpObj.Visible = moldura;
}

}  // namespace frame
