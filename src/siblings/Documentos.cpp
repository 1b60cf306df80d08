#include "siblings/Documentos.h"

#include "base/Value.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "siblings/dados/clsDocumentos.h"

namespace siblings {

std::optional<Empresa> EmpresaDoDocumento(std::string_view oQue) {
  auto documentos = frame::CriarServicoComSessao<dados::clsDocumentos>();
  if (!frame::Aceitar(documentos->SelecionarEmpresa(), *documentos)) return std::nullopt;
  const base::RecordSetPtr registro = documentos->ResultadoDaSelecaoEmRecordSet();
  if (registro->RecordCount() == 0) {
    frame::Informar("Não foi possível imprimir " + std::string(oQue) +
                    " porque não há empresa cadastrada.\nPeça ao administrador para cadastrar a "
                    "empresa.");
    return std::nullopt;
  }
  registro->MoveFirst();
  const auto texto = [&](std::string_view campo) { return base::ToText(registro->Fields(campo)); };
  return Empresa{.nomeFantasia = texto("NomeFantasia"),
                 .razaoSocial = texto("RazaoSocial"),
                 .cnpj = texto("CNPJ"),
                 .endereco = texto("Endereco"),
                 .municipio = texto("Municipio"),
                 .uf = texto("UF"),
                 .telefone = texto("Telefone")};
}

}  // namespace siblings
