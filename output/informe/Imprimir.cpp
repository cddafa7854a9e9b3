#include "output/informe/Imprimir.h"

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "masters/M_Clients.h"
#include "output/DR_Albara_Valorat.h"
#include "output/M_Impressio.h"
#include "output/informe/Informe.h"
#include "output/informe/Sortida.h"
#include "session/M_Empresa.h"

namespace {

constexpr int files_de_peu = 4;
constexpr const char* mascara = "#,##0.00";
constexpr const char* mascara_detall = "#,##0.00;; ";  // zero prints as a blank

// What a kind's report has of its own.
struct Descripcio_Impressio {
  const Tipus_Document& tipus;
  const Definicio_Informe& definicio;
  const char* telefon;         // between the address and the telephone of the company
  const char16_t* prefix_pdf;  // A-12.pdf
};

const Descripcio_Impressio& Descripcio_De(const Tipus_Document& tipus) {
  static const Descripcio_Impressio descripcions[] = {{tipus_albara, DR_Albara_Valorat(), " - Tel. ", u"A-"}};
  for (const auto& descripcio : descripcions) {
    if (&descripcio.tipus == &tipus) return descripcio;
  }
  throw Error_Brollador(errors::general, "Imprimir_Document", "no report for " + std::string(tipus.formulari));
}

QString Qt_Text(const std::string& text) {
  return QString::fromStdString(text);
}

class Ompliment {
 public:
  Ompliment(const Descripcio_Impressio& descripcio, const Valor& numero, const std::string& empresa)
      : d_(descripcio), numero_(numero), empresa_(empresa), informe_(descripcio.definicio) {}

  Pagines Fer(Recordset& files) {
    informe_.Traduir();
    Empresa();
    Descompte();
    Capcalera();
    Formats();
    Valorat_O_No();
    Posar("L_NETO_IMP", Format_Numero(Net_Impres(d_.tipus), mascara));
    Peu();
    return {.titol = informe_.Caption(QStringLiteral("L_ALBARA")) + u' ' + Qt_Text(numero_.Text()),
            .autor = informe_.Caption(QStringLiteral("L_RAO_SOCIAL_EMP")),
            .pagines = informe_.Maquetar(files)};
  }

 private:
  void Posar(const char* control, const std::string& text) {
    informe_.Caption(QString::fromUtf8(control), Qt_Text(text));
  }
  QString De_Linia(const char* paper) const {
    return QString::fromUtf8(paper) + u'_' + Qt_Text(std::string(d_.tipus.lin.sufix));
  }

  void Empresa() {
    enum { rao_social, nif, adreca, telefon, cp, localitat };
    const auto dades = Dades_Empresa();
    Posar("L_RAO_SOCIAL_EMP", dades[rao_social]);
    Posar("L_NIF_EMP", "NIF: " + dades[nif]);
    Posar("L_ADREÇA_EMP", dades[adreca] + d_.telefon + dades[telefon]);
    Posar("L_CP_POBLACIO_EMP", dades[cp] + " " + dades[localitat]);
  }

  // A document without discounts shows no title over the empty column.
  void Descompte() {
    if (!Hi_Ha_Descomptes(d_.tipus, numero_, empresa_)) informe_.Caption(De_Linia("L_DTE"), QStringLiteral(" "));
  }

  void Capcalera() {
    enum { nif, rao_social, nom_comercial, adreca, cp, localitat };
    const Capcalera_Impressa cap = Dades_Capcalera(d_.tipus, numero_, empresa_);
    const auto client = Dades_Client(cap.client);
    Posar("L_TXT_ALBARA", numero_.Text());
    Posar("L_TXT_DATA", cap.data);
    Posar("L_TXT_OBSR", cap.observacions);
    Posar("L_TXT_NIF", client[nif]);
    Posar("L_NOM_FISCAL", client[rao_social]);
    Posar("L_NOM_COMERCIAL", client[nom_comercial]);
    Posar("L_DIRECCIO", client[adreca]);
    Posar("L_POBLACIO", client[cp] + " " + client[localitat]);
  }

  void Formats() {
    for (const char* paper : {"TXT_UNITATS", "TXT_PREU_UNITARI", "TXT_DTE", "TXT_TOTAL_IMPORT"}) {
      informe_.Data_Format(De_Linia(paper), mascara_detall);
    }
  }

  // Without prices the foot is printed all the same.
  void Valorat_O_No() {
    const bool valorat = sessio.Crida_Document != std::string(d_.tipus.formulari) + ";NO_VALORAT";
    for (const char* paper : {"PREU_UNITARI", "DTE", "TOTAL_IMPORT"}) {
      informe_.Visible(De_Linia((std::string("TXT_") + paper).c_str()), valorat);
      if (!valorat) informe_.Caption(De_Linia((std::string("L_") + paper).c_str()), QStringLiteral(" "));
    }
  }

  // The page has four rows: one more finds no label and raises.
  void Peu() {
    static constexpr const char* etiquetes[] = {"L_BASE_",    "L_IVA_PORC_", "L_IVA_IMP_",
                                                "L_RE_PORC_", "L_RE_IMP_",   "L_IMPORT_BRUT_"};
    const Peu_Impres peu = Dades_Peu(d_.tipus, numero_, empresa_);
    const auto files = std::max(peu.files.size(), static_cast<std::size_t>(files_de_peu));
    for (std::size_t fila = 0; fila < files; ++fila) {
      for (std::size_t i = 0; i < std::size(etiquetes); ++i) {
        const std::string text = fila < peu.files.size() ? peu.files[fila][i] : std::string();
        Posar((etiquetes[i] + std::to_string(fila + 1)).c_str(), text);
      }
    }
    Posar("L_IMPORT_TOTAL_IMP", Format_Numero(peu.total, mascara));
  }

  const Descripcio_Impressio& d_;
  const Valor& numero_;
  const std::string& empresa_;
  Informe informe_;
};

void Treure(const Pagines& pagines, const QString& fitxer_pdf, int mode) {
  if (mode == impressio::pdf) {
    Crear_Directori(sessio.Dir_Temp);
    return Escriure_PDF(pagines, fitxer_pdf);
  }
  Imprimir_Pagines(pagines);
}

// Empties the work table whatever becomes of the print.
class Taula_De_Treball {
 public:
  Taula_De_Treball(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) : tipus_(tipus) {
    Omplir_Taula_Impressio(tipus, numero, empresa);
  }
  ~Taula_De_Treball() {
    try {
      Buidar_Taula_Impressio(tipus_);
    } catch (const Error_Brollador& error) {
      qWarning("%s", error.what());  // it is emptied again before the next print
    }
  }
  Taula_De_Treball(const Taula_De_Treball&) = delete;
  Taula_De_Treball& operator=(const Taula_De_Treball&) = delete;

 private:
  const Tipus_Document& tipus_;
};

}  // namespace

void Imprimir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, int mode) {
  const Descripcio_Impressio& descripcio = Descripcio_De(tipus);
  const Taula_De_Treball taula(tipus, numero, empresa);
  Recordset files(SQL_Impressio(tipus), sessio.Connexio_Local);
  if (files.RecordCount() == 0) return;
  Treure(Ompliment(descripcio, numero, empresa).Fer(files), Fitxer_PDF(tipus, numero), mode);
}

QString Fitxer_PDF(const Tipus_Document& tipus, const Valor& numero) {
  return Qt_Text(sessio.Dir_Temp) + QString::fromUtf16(Descripcio_De(tipus).prefix_pdf) + Qt_Text(numero.Text()) +
         QStringLiteral(".pdf");
}
