#include "output/DR_Valorat.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "core/formularis/Text_Qt.h"

namespace {

using enum Mena_Control;
using enum Costat;
using enum Ajust;

constexpr int files_peu = 4;
constexpr int gruix_ratlla = 10;  // half a point
constexpr int pas_bloc = 260;     // twips, between the lines of the company's block beside a logo
constexpr int alcada_bloc = 255;

constexpr double ample_full = 180;
constexpr double x_valors = 26;  // of the head and the foot, beside their titles
constexpr double ample_valors = 58;
constexpr double ample_logo = 70;
constexpr double ample_sota_logo = 86;  // leaves the customer in the window of the envelope
constexpr double dalt_client = 37.9;
constexpr double mes_avall = 75;  // of the company's block: the lines have the rest of the page

constexpr Estil_Lletra nom_empresa{15, true};
constexpr Estil_Lletra nom_empresa_bloc{10.4, true};
constexpr Estil_Lletra dades_empresa{9, false, Tinta::Grisa};
constexpr Estil_Lletra titol{8, false, Tinta::Grisa};
constexpr Estil_Lletra titol_columna{8.5, true};
constexpr Estil_Lletra text{9.5};
constexpr Estil_Lletra text_linia{9};
constexpr Estil_Lletra nom_client{10, true};
constexpr Estil_Lletra adreca_client{10};
constexpr Estil_Lletra total{10.5, true};
constexpr Estil_Lletra numero{14, true};
constexpr Estil_Lletra clara{0, false, Tinta::Clara};
constexpr Estil_Lletra fosca{0};

int Mm(double mil_limetres) {
  return static_cast<int>(std::lround(mil_limetres * 1440 / 25.4));
}
// Millimetres from the left margin and from the top of the section.
QRect Lloc(double x, double y, double ample, double alt) {
  return {Mm(x), Mm(y), Mm(ample), Mm(alt)};
}

// The lines of the company's block beside a logo, from its top down.
QStringList Bloc_Empresa() {
  return {u"L_COMENTARI_EMP"_qs, u"L_RAO_SOCIAL_EMP"_qs, u"L_NIF_EMP"_qs, u"L_ADREÇA_EMP"_qs, u"L_CP_POBLACIO_EMP"_qs};
}

class Dibuixant {
 public:
  explicit Dibuixant(const Descripcio_Impressio& descripcio) : d_(descripcio) {}

  Definicio_Informe Dibuixar() {
    fet_.nom = d_.informe;
    Seccio_Nova(Seccio::Encapcalament);
    if (d_.logo) {
      Empresa_Amb_Logo();
    } else {
      Empresa();
    }
    Document();
    Client();
    Titols();
    Seccio_Nova(Seccio::Detall);
    Detall();
    Seccio_Nova(Seccio::Peu_De_Pagina);
    Posar(u"L_PAGINA"_qs, Comptador, Lloc(140, 3, 40, 4), titol, Dreta, Encongir, u"%p/%P"_qs);
    Alcada(7);
    Seccio_Nova(Seccio::Peu_D_Informe);
    Imports();
    if (d_.venciments) Venciments();
    for (const auto& peu : d_.peus) Peu_Empresa(peu);
    if (d_.firmes) Firmes();
    Alcada(y_);
    return std::move(fet_);
  }

 private:
  void Seccio_Nova(Seccio seccio) {
    seccio_ = seccio;
    y_ = 0;
  }
  void Alcada(double mil_limetres) { fet_.alcades[static_cast<std::size_t>(seccio_)] = Mm(mil_limetres); }
  void Posar(const QString& nom, Mena_Control mena, QRect lloc, Estil_Lletra lletra, Costat costat = Esquerra,
             Ajust ajust = Encongir, const QString& caption = {}) {
    fet_.controls.push_back({nom, seccio_, mena, lloc, lletra, costat, ajust, caption});
  }
  void Ratllar(const QString& nom, double x, double y, double ample, const Estil_Lletra& lletra) {
    Posar(nom, Ratlla, {Mm(x), Mm(y), Mm(ample), gruix_ratlla}, lletra);
  }
  void Titol(const QString& nom, double x, double y, double ample, const QString& caption) {
    Posar(nom, Etiqueta, Lloc(x, y, ample, 4), titol, Esquerra, Encongir, caption);
  }
  // Of the value that was placed last: both begin on one line, wherever they move.
  void Titol_Del_Valor(const QString& nom, const QString& caption) {
    const Control_Informe valor = fet_.controls.back();
    const int dalt = valor.lloc.y() + static_cast<int>(Base_De_Linia(valor.lletra) - Base_De_Linia(titol));
    Posar(nom, Etiqueta, {0, dalt, Mm(x_valors - 1), Mm(4)}, titol, Esquerra, Encongir, caption);
    fet_.controls.back().titol_de = valor.nom;
  }

  void Empresa() {
    Posar(u"L_RAO_SOCIAL_EMP"_qs, Etiqueta, Lloc(0, 0, ample_full, 7), nom_empresa, Esquerra, Creixer);
    Posar(u"L_NIF_EMP"_qs, Etiqueta, Lloc(0, 7.6, ample_full, 4), dades_empresa);
    Posar(u"L_ADREÇA_EMP"_qs, Etiqueta, Lloc(0, 11.8, ample_full, 4), dades_empresa, Esquerra, Creixer);
    Posar(u"L_CP_POBLACIO_EMP"_qs, Etiqueta, Lloc(0, 16, ample_full, 4), dades_empresa);
    Ratllar(u"R_EMPRESA"_qs, 0, 22.5, ample_full, clara);
  }

  void Empresa_Amb_Logo() {
    Posar(u"IMG_LOGO"_qs, Imatge, Lloc(0, 0, ample_logo, 25), {});
    int y = 0;
    const double x = ample_logo + 5;
    for (const QString& nom : Bloc_Empresa()) {
      const bool es_nom = nom == u"L_RAO_SOCIAL_EMP";
      Posar(nom, Etiqueta, {Mm(x), y, Mm(ample_full - x), alcada_bloc}, es_nom ? nom_empresa_bloc : dades_empresa,
            Esquerra, Creixer);
      y += pas_bloc;
    }
  }

  void Document() {
    Posar(u"L_TXT_ALBARA"_qs, Etiqueta, Lloc(x_valors, 37, ample_valors, 6.1), numero);
    Titol_Del_Valor(u"L_ALBARA"_qs, QString::fromUtf8(d_.titol));
    Posar(u"L_TXT_DATA"_qs, Etiqueta, Lloc(x_valors, 46, ample_valors, 4.4), text);
    Titol_Del_Valor(u"L_DATA"_qs, u"Data"_qs);
    Posar(u"L_TXT_NIF"_qs, Etiqueta, Lloc(x_valors, 51.5, ample_valors, 4.4), text);
    Titol_Del_Valor(u"L_NIF"_qs, u"NIF"_qs);
    y_ = 57;
    if (d_.codi_client) {
      Posar(u"L_TXT_CODI_CLIENT"_qs, Etiqueta, Lloc(x_valors, y_, ample_valors, 4.4), text, Esquerra, Creixer);
      Titol_Del_Valor(u"L_CODI_CLIENT"_qs, u"Codi client"_qs);
      y_ += 5.5;
    }
    y_ += 3;
    Posar(u"L_TXT_OBSR"_qs, Etiqueta, Lloc(x_valors, y_, ample_full - x_valors, 4.4), text, Esquerra, Creixer);
    Titol_Del_Valor(u"L_OBSR"_qs, u"Observacions"_qs);
    y_ += 7;
  }

  // Where the window of an envelope shows it: from 105 mm of the sheet's left edge, between 50 and 80 mm of its top.
  void Client() {
    double y = dalt_client;
    for (const QString& nom : {u"L_NOM_FISCAL"_qs, u"L_NOM_COMERCIAL"_qs, u"L_DIRECCIO"_qs, u"L_POBLACIO"_qs}) {
      Posar(nom, Etiqueta, Lloc(90, y, 90, 4.4), y > dalt_client ? adreca_client : nom_client, Esquerra, Creixer);
      y += 4.9;
    }
  }

  // A column of the lines: its title, and the field below it.
  struct Columna {
    std::string titol;
    std::string_view camp;
    double x;
    double ample;
    QString caption;
  };

  std::vector<Columna> Columnes() const {
    const bool descompte = !d_.Linia_De("DTE").empty();
    const double mes = descompte ? 0 : 13;  // what a discount column takes is the description's
    const std::string_view preu = d_.Linia_De("PREU_UNITARI");
    std::vector<Columna> columnes{
        {"DESCRIPCIO", "DESCRIPCIO", 0, 92 + mes, u"Descripció"_qs},
        {"UNITATS", "UNITATS", 95 + mes, 20, u"Unitats"_qs},
        {std::string(preu), "PREU_UNITARI", 117 + mes, 23, preu == "COST" ? u"Cost"_qs : u"Preu"_qs}};
    if (descompte) columnes.push_back({"DTE", "DTE", 141, 14, u"Dte"_qs});
    columnes.push_back({"TOTAL_IMPORT", "TOTAL_IMPORT", 156, 24, u"Import"_qs});
    return columnes;
  }

  void Titols() {
    Ratllar(u"R_TITOLS_DALT"_qs, 0, y_, ample_full, fosca);
    for (const auto& c : Columnes()) {
      Posar(u"L_"_qs + Text_Qt(d_.Tipus().lin.Columna(c.titol)), Etiqueta, Lloc(c.x, y_ + 1.5, c.ample, 4),
            titol_columna, c.x > 0 ? Dreta : Esquerra, Encongir, c.caption);
    }
    Ratllar(u"R_TITOLS_BAIX"_qs, 0, y_ + 6.2, ample_full, fosca);
    Alcada(y_ + 7.4);
  }

  void Detall() {
    for (const auto& c : Columnes()) {
      Posar(u"TXT_"_qs + Text_Qt(d_.taula.Columna(c.camp)), Camp, Lloc(c.x, 0.6, c.ample, 4), text_linia,
            c.x > 0 ? Dreta : Esquerra, c.x > 0 ? Encongir : Creixer);
    }
    Alcada(4.7);
  }

  // The tax rows on the left, what they come to on the right.
  void Imports() {
    struct Columna_Peu {
      const char16_t* nom;
      const char16_t* titol;
      double x;
      double ample;
    };
    static constexpr Columna_Peu columnes[] = {
        {u"L_BASE", u"Base", 0, 24},     {u"L_IVA_PORC", u"% IVA", 25, 12}, {u"L_IVA_IMP", u"IVA", 38, 21},
        {u"L_RE_PORC", u"% RE", 60, 12}, {u"L_RE_IMP", u"RE", 73, 20},      {u"L_IMPORT_BRUT", u"Import", 94, 25},
    };
    Ratllar(u"R_PEU"_qs, 0, 4, ample_full, fosca);
    Titol(u"L_NETO"_qs, 132, 6.4, 18, u"Net"_qs);
    Posar(u"L_NETO_IMP"_qs, Etiqueta, Lloc(150, 6, 30, 4), text_linia, Dreta);
    Ratllar(u"R_TOTAL"_qs, 132, 25.5, 48, fosca);
    Posar(u"L_IMPORT_TOTAL"_qs, Etiqueta, Lloc(132, 28.3, 18, 5), total, Esquerra, Encongir, u"Total €"_qs);
    Posar(u"L_IMPORT_TOTAL_IMP"_qs, Etiqueta, Lloc(150, 27.2, 30, 6.1), numero, Dreta);
    for (const auto& [nom, caption, x, ample] : columnes) {
      const QString base = QString::fromUtf16(nom);
      Posar(base, Etiqueta, Lloc(x, 6.4, ample, 4), titol, Dreta, Encongir, QString::fromUtf16(caption));
      for (int fila = 1; fila <= files_peu; ++fila) {
        Posar(base + u'_' + QString::number(fila), Etiqueta, Lloc(x, 6.6 + 5 * fila, ample, 4), text_linia, Dreta);
      }
    }
    y_ = 33.4;
  }

  void Venciments() {
    y_ += 3;
    Posar(u"L_TXT_PAGAMENT"_qs, Etiqueta, Lloc(x_valors, y_, ample_full - x_valors, 4.4), text, Esquerra, Creixer);
    Titol_Del_Valor(u"L_VENCIMENTS"_qs, u"Venciments"_qs);
    Posar(u"L_TXT_VENCIMENTS"_qs, Etiqueta, Lloc(x_valors, y_ + 4.6, ample_full - x_valors, 4.4), text, Esquerra,
          Creixer);
    y_ += 9;
  }

  void Peu_Empresa(const Linia_De_Peu& peu) {
    y_ += 1.5;
    const QString nom = u"L_"_qs + Text_Qt(peu.nom);
    const bool amb_titol = peu.titol != nullptr;
    const double x = amb_titol ? x_valors : 0;
    Posar(nom + u"_EMP"_qs, Etiqueta, Lloc(x, y_, ample_full - x, 4), titol, Esquerra, Creixer);
    if (amb_titol) Titol_Del_Valor(nom, QString::fromUtf8(peu.titol));
    y_ += 4;
  }

  void Firmes() {
    constexpr double ample = 80;
    constexpr double per_firmar = 20;
    y_ += 4;
    const auto firma = [&](const QString& nom, double x, const QString& caption) {
      Titol(u"L_FIRMA_"_qs + nom, x, y_, ample, caption);
      Ratllar(u"R_FIRMA_"_qs + nom, x, y_ + per_firmar, ample, clara);
    };
    firma(u"CLIENT"_qs, 0, u"Firma del client"_qs);
    firma(u"INSTALADOR"_qs, 100, u"Firma de l'instal·lador"_qs);
    y_ += per_firmar + 1;
  }

  const Descripcio_Impressio& d_;
  Definicio_Informe fet_{};
  Seccio seccio_ = Seccio::Encapcalament;
  double y_ = 0;  // millimetres: where the next thing of the section may stand
};

}  // namespace

const Definicio_Informe& DR_Valorat(const Descripcio_Impressio& descripcio) {
  static std::map<std::string_view, Definicio_Informe> fetes;
  const auto trobada = fetes.find(descripcio.informe);
  if (trobada != fetes.end()) return trobada->second;
  return fetes.emplace(descripcio.informe, Dibuixant(descripcio).Dibuixar()).first->second;
}

void Posar_Bloc_Empresa(Informe& informe, int top) {
  top = std::clamp(top, 0, Mm(mes_avall));
  const QSize logo = informe.Mida_Imatge(u"IMG_LOGO"_qs);
  const bool al_costat = top < logo.height();
  const bool damunt_del_client = top + 5 * pas_bloc <= Mm(dalt_client);
  const int x = al_costat ? logo.width() + Mm(5) : 0;
  const int ample = al_costat || damunt_del_client ? Mm(ample_full) - x : Mm(ample_sota_logo);
  for (const QString& nom : Bloc_Empresa()) {
    informe.Top(nom, top);
    informe.Amplada(nom, x, ample);
    top += pas_bloc;
  }
}
