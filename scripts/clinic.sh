# Sourced by ./run from the top folder: the demonstration clinic.

# create_clinic FOLDER: creates FOLDER/clinica.db with the demonstration clinic, unless it is there. It is
# built in a folder of its own and gets its name when it is whole: an interrupted run leaves no half of a
# clinic, and of two at once the first one's stays.
create_clinic() {
  local folder=$1 new programs=${CAIXA_PROGRAMS:-build/bin}
  # Sales and passwords are nobody else's business.
  [ -d "$folder" ] || mkdir -p -m 700 "$folder"
  [ ! -e "$folder/clinica.db" ] || return 0
  new=$(mktemp -d "$folder/nova-XXXXXX")
  # What the last program did not bring from the log into the file would be lost.
  if ! fill_clinic "$programs" "sqlite:$new/clinica.db" || [ -s "$new/clinica.db-wal" ]; then
    rm -rf "$new"
    return 1
  fi
  # A link takes no name that is given; where the file system knows none, neither does this move.
  ln "$new/clinica.db" "$folder/clinica.db" 2>/dev/null ||
    mv -n "$new/clinica.db" "$folder/clinica.db"
  rm -rf "$new"
}

# fill_clinic PROGRAMS ADDRESS: the clinic issues coupons, shows its receipts without asking, and offers
# promissory notes.
fill_clinic() {
  "$1/caixa-banco" "$2" criar &&
    "$1/caixa-banco" "$2" demonstracao &&
    "$1/caixa-banco" "$2" empresa >/dev/null \
      CodigoDoDocumentoComEmissaoPermitida=11 ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT=Não \
      ImprimirComprovanteDeCFeSAT=Sim SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT=Sim \
      ImprimirComprovanteDePagamento=Sim VisualizarImpressaoDoComprovanteDePagamento=Sim \
      SolicitarConfirmacaoParaImprimirComprovanteDePagamento=Não \
      ImprimirNotaPromissoria=Sim VisualizarImpressaoDaNotaPromissoria=Sim \
      SolicitarConfirmacaoParaImprimirNotaPromissoria=Sim
}
