#include "desktop/GalleryDialog.h"

#include "platform/Layout.h"

namespace gallery {

using platform::Look;

Dialog::Dialog() : Form("frmGaleriaDialogo") {
  zvtxtSenha.password = true;
  zvmskCPF.Mask.Assign("###.###.###-##");
  zvmskCPF.Text.Assign(zvmskCPF.EmptyText());
  optVencidos.Preset();
  Arrange({.size = {10500, 8700},
           .places = {
               {zvTema, {0, 0, 0, 0}, "Pagamento"},
               {lblUsuario, {240, 195, 3000, 240}, "Supervisor*"},
               {zvtxtUsuario, {240, 450, 3000, 450}},
               {lblSenha, {3390, 195, 3000, 240}, "Senha*"},
               {zvtxtSenha, {3390, 450, 3000, 450}},
               {picVenda, {240, 1080, 3240, 870}, "", Look::kCard},
               {lblVenda, {150, 135, 2940, 240}, "Valor da venda"},
               {zvtxtVenda, {150, 360, 2940, 420}, "", Look::kAmount},
               {picTroco, {3630, 1080, 3240, 870}, "", Look::kMainAmount},
               {lblTroco, {150, 135, 2940, 240}, "Troco"},
               {zvtxtTroco, {150, 345, 2940, 450}, "", Look::kMainAmount},
               {lblForma, {240, 2130, 4230, 240}, "Forma de pagamento"},
               {zvcmbForma, {240, 2385, 4230, 450}},
               {lblValor, {4620, 2130, 1950, 240}, "Valor em dinheiro"},
               {zvnumValor, {4620, 2385, 1950, 450}},
               {lblData, {6720, 2130, 1800, 240}, "Data de vencimento"},
               {zvdtpData, {6720, 2385, 1800, 450}},
               {lblCPF, {240, 3000, 2400, 240}, "CPF do consumidor"},
               {zvmskCPF, {240, 3255, 2400, 450}},
               {lblPeriodo, {2790, 3000, 3600, 240}, "Período"},
               {zvperPeriodo, {2790, 3255, 3600, 450}},
               {optTodos, {6720, 3255, 1200, 450}, "Todos"},
               {optVencidos, {8100, 3255, 1800, 450}, "Só vencidos"},
               {lblObservacao, {240, 3900, 3600, 240}, "Observação"},
               {zvmemObservacao, {240, 4155, 4230, 1500}},
               {msfgDebitos, {4620, 4155, 5640, 2700}},
               {shpLinha, {240, 7050, 10020, 15}},
               {picRodape, {0, 7800, 10500, 900}, "", Look::kFooter},
               {zvcmdCancelar, {7560, 210, 1230, 480}, "Cancelar"},
               {zvcmdConfirmar, {8910, 210, 1350, 480}, "Confirmar", Look::kPrimary},
           }});
  defaultButton = &zvcmdConfirmar;
  cancelButton = &zvcmdCancelar;
}

void Dialog::Fill() {
  zvtxtUsuario.Text = "marta";
  zvtxtSenha.Text = "segredo";
  zvtxtVenda.Text = "1.362,30";
  zvtxtVenda.Locked = true;
  zvtxtTroco.Text = "-37,70";
  zvtxtTroco.Locked = true;
  for (const char* item : {"1-Dinheiro", "2-Cheque", "3-Cartão de crédito", "4-Cartão de débito",
                           "5-Boleto", "6-A crédito (Fiado)", "8-PIX"}) {
    zvcmbForma.AddItem(item);
  }
  zvcmbForma.ListIndex = 5;
  zvnumValor.Text = "0,00";
  lblValor.ForeColor = 255;
  zvdtpData.Text = "22/12/2026";
  zvmemObservacao.Text =
      "Cliente pede para entregar à tarde.\nO portão é o azul, ao lado da padaria; "
      "o interfone não funciona.";
  msfgDebitos.Cols(4);
  msfgDebitos.TextMatrix(0, 1, "Vencimento");
  msfgDebitos.TextMatrix(0, 2, "Descrição do débito do cliente");
  msfgDebitos.TextMatrix(0, 3, "Valor");
  msfgDebitos.ColWidth(0, 600);
  msfgDebitos.ColWidth(1, 1400);
  msfgDebitos.ColWidth(2, 1500);
  msfgDebitos.ColWidth(3, 1000);
  msfgDebitos.ColAlignment(0, platform::Align::kCenterCenter);
  msfgDebitos.ColAlignment(3, platform::Align::kRightCenter);
  msfgDebitos.AddItem("þ\t01/10/2026\tRação e banho\t120,00");
  msfgDebitos.AddItem("q\t15/11/2026\tConsulta clínica e vacina\t1.340,50");
  msfgDebitos.RemoveItem(1);
  for (int row = 1; row <= 2; ++row) {
    msfgDebitos.Row(row);
    msfgDebitos.Col(0);
    msfgDebitos.CellFontName("Wingdings");
  }
  msfgDebitos.Col(1);
  msfgDebitos.Row(1);
  msfgDebitos.CellForeColor(255);
}

}  // namespace gallery
