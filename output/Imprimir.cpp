#include "output/Imprimir.h"

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Imatge_De_Fitxer.h"
#include "core/formularis/Text_Qt.h"
#include "output/DR_Valorat.h"
#include "output/M_Impressio.h"
#include "output/informe/Sortida.h"

namespace {

constexpr QSize maxim_logo{1700, 600};  // dots: 600 an inch in its place on the page

void Posar(Informe& informe, const Ompliment_Informe& ompliment, bool logo) {
  if (logo) {
    informe.Picture(u"IMG_LOGO"_qs, Imatge_De_Fitxer(Text_Qt(ompliment.imatge), maxim_logo));
    Posar_Bloc_Empresa(informe, ompliment.posicio_top);
  }
  for (const auto& [control, text] : ompliment.textos) informe.Caption(Text_Qt(control), Text_Qt(text));
  for (const auto& control : ompliment.amagats) informe.Visible(Text_Qt(control), false);
  for (const auto& [control, mascara] : ompliment.formats) informe.Data_Format(Text_Qt(control), mascara);
}

Pagines Fer_Pagines(const Descripcio_Impressio& descripcio, const Valor& numero, const std::string& empresa,
                    Recordset& files) {
  Informe informe(DR_Valorat(descripcio));
  informe.Traduir();
  const bool valorat = sessio.Crida_Document != std::string(descripcio.Tipus().formulari) + ";NO_VALORAT";
  Posar(informe, Omplir_Informe(descripcio, numero, empresa, valorat), descripcio.logo);
  return {.titol = informe.Caption(u"L_ALBARA"_qs) + u' ' + Text_Qt(numero.Text()),
          .autor = informe.Caption(u"L_RAO_SOCIAL_EMP"_qs),
          .pagines = informe.Maquetar(files)};
}

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
  Taula_De_Treball(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa)
      : informe_(informe) {
    Omplir_Taula_Impressio(informe, numero, empresa);
  }
  ~Taula_De_Treball() {
    try {
      Buidar_Taula_Impressio(informe_);
    } catch (const Error_Brollador& error) {
      qWarning("%s", error.what());  // it is emptied again before the next print
    }
  }
  Taula_De_Treball(const Taula_De_Treball&) = delete;
  Taula_De_Treball& operator=(const Taula_De_Treball&) = delete;

 private:
  const Descripcio_Impressio& informe_;
};

}  // namespace

Pagines Pagines_De_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const Descripcio_Impressio& informe = Informe_De(tipus);
  const Taula_De_Treball taula(informe, numero, empresa);
  Recordset files(SQL_Impressio(informe), sessio.Connexio_Local);
  return files.RecordCount() == 0 ? Pagines{} : Fer_Pagines(informe, numero, empresa, files);
}

void Imprimir_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, int mode) {
  const Pagines pagines = Pagines_De_Document(tipus, numero, empresa);
  if (!pagines.pagines.empty()) Treure(pagines, Fitxer_PDF(tipus, numero), mode);
}

QString Fitxer_PDF(const Tipus_Document& tipus, const Valor& numero) {
  const Descripcio_Impressio& informe = Informe_De(tipus);
  const QString nom = QString::fromUtf8(informe.prefix_pdf.data(), static_cast<qsizetype>(informe.prefix_pdf.size())) +
                      Text_Qt(numero.Text());
  return Text_Qt(sessio.Dir_Temp) + Nom_De_Fitxer(nom) + QStringLiteral(".pdf");
}
