#include "output/informe/Informe.h"

#include <QFont>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "core/M_Idiomes.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Numeros.h"
#include "output/informe/Lletra.h"

namespace {

// A value as its field shows it.
QString Text_De_Camp(const Valor& valor, const std::string& mascara) {
  const bool nombre = valor.Es_Doble() || valor.Es_Enter();
  return QString::fromStdString(nombre && !mascara.empty() ? Format_Numero(valor.Doble(), mascara) : valor.Text());
}

std::string Columna_De(const Control_Informe& control) {
  return QString::fromUtf16(control.nom).remove(QStringLiteral("TXT_")).toStdString();
}

}  // namespace

Informe::Informe(const Definicio_Informe& definicio) : definicio_(definicio) {
  for (const auto& control : definicio_.controls) {
    Estat estat{.control = &control,
                .text = QString::fromUtf16(control.text),
                .dalt = control.dalt,
                .mascara = {},
                .imatge = {}};
    estats_.push_back(std::move(estat));
  }
}

const Informe::Estat& Informe::Cercar(const QString& nom) const {
  for (const auto& estat : estats_) {
    if (nom.compare(QString::fromUtf16(estat.control->nom), Qt::CaseInsensitive) == 0) return estat;
  }
  Llancar_Error(errors::camp_no_trobat, definicio_.nom, nom.toStdString());
}

Informe::Estat& Informe::Cercar(const QString& nom) {
  return const_cast<Estat&>(std::as_const(*this).Cercar(nom));
}

void Informe::Caption(const QString& control, const QString& text) {
  Cercar(control).text = text;
}
QString Informe::Caption(const QString& control) const {
  return Cercar(control).text;
}
void Informe::Visible(const QString& control, bool visible) {
  Cercar(control).visible = visible;
}
void Informe::Top(const QString& control, int twips) {
  Cercar(control).dalt = twips;
}
void Informe::Data_Format(const QString& control, const char* mascara) {
  Cercar(control).mascara = mascara;
}
void Informe::Picture(const QString& control, const QString& fitxer) {
  Cercar(control).imatge = QImage(fitxer);
}

void Informe::Traduir() {
  for (const auto& fila : Textos_De(definicio_.nom)) {
    const QString adreca = QString::fromStdString(fila.control);
    const QString nom = adreca.section(u'.', 0, 0);
    const int seccio = adreca.section(u'.', 1, 1).toInt();
    for (auto& estat : estats_) {
      const bool es = nom.compare(QString::fromUtf16(estat.control->nom), Qt::CaseInsensitive) == 0;
      if (es && static_cast<int>(estat.control->seccio) == seccio) estat.text = QString::fromStdString(fila.text);
    }
  }
}

// ---- Layout -----------------------------------------------------------------------------------------------------

class Informe::Maquetador {
 public:
  Maquetador(const Informe& informe, Pagines& pagines) : informe_(informe), pagines_(pagines) {}

  void Fer(Recordset& files) {
    Nova_Pagina();
    for (files.MoveFirst(); !files.Eof(); files.MoveNext()) Fila(files);
    Peu_D_Informe();
    Numerar();
  }

 private:
  int Alcada(Seccio seccio) const { return informe_.definicio_.alcades[static_cast<int>(seccio)]; }
  int Fons() const { return paper::alcada - paper::marge - Alcada(Seccio::Peu_De_Pagina); }

  void Nova_Pagina() {
    pagines_.pagines.emplace_back();
    Posar_Seccio(Seccio::Encapcalament, paper::marge);
    Posar_Seccio(Seccio::Peu_De_Pagina, Fons());
    y_ = paper::marge + Alcada(Seccio::Encapcalament);
  }

  void Posar_Seccio(Seccio seccio, int y) {
    for (const auto& estat : informe_.estats_) {
      if (estat.control->seccio == seccio && estat.visible) Posar(estat, estat.text, y, estat.control->alcada);
    }
  }

  void Posar(const Estat& estat, const QString& text, int y, int alcada) {
    const Control_Informe& c = *estat.control;
    pagines_.pagines.back().push_back({.lloc = QRectF(paper::marge + c.esquerra, y + estat.dalt, c.amplada, alcada),
                                       .mena = c.mena,
                                       .text = text,
                                       .alineacio = c.alineacio,
                                       .punts = c.punts,
                                       .negreta = c.negreta,
                                       .creix = c.creix,
                                       .imatge = estat.imatge});
  }

  void Fila(const Recordset& files) {
    std::vector<std::pair<const Estat*, QString>> camps;
    int alcada = Alcada(Seccio::Detall);
    for (const auto& estat : informe_.estats_) {
      if (estat.control->seccio != Seccio::Detall || !estat.visible) continue;
      const bool camp = estat.control->mena == Mena_Control::Camp;
      const QString text = camp ? Text_De_Camp(files[Columna_De(*estat.control)], estat.mascara) : estat.text;
      if (estat.control->creix) alcada = std::max(alcada, estat.dalt + Alcada_De_Text(*estat.control, text));
      camps.emplace_back(&estat, text);
    }
    if (y_ + alcada > Fons()) Nova_Pagina();
    for (const auto& [estat, text] : camps) {
      Posar(*estat, text, y_, estat->control->creix ? alcada - estat->dalt : estat->control->alcada);
    }
    y_ += alcada;
  }

  static int Alcada_De_Text(const Control_Informe& control, const QString& text) {
    const QFontMetricsF mesura(Lletra(control.punts, control.negreta));
    const QRectF lloc(0, 0, control.amplada, paper::alcada);
    return static_cast<int>(std::ceil(mesura.boundingRect(lloc, Qt::TextWordWrap, text).height())) + 40;
  }

  void Peu_D_Informe() {
    const int alcada = Alcada(Seccio::Peu_D_Informe);
    if (y_ + alcada > Fons()) Nova_Pagina();
    Posar_Seccio(Seccio::Peu_D_Informe, Fons() - alcada);
  }

  void Numerar() {
    const QString total = QString::number(pagines_.pagines.size());
    int pagina = 0;
    for (auto& elements : pagines_.pagines) {
      ++pagina;
      for (auto& element : elements) {
        if (element.mena != Mena_Control::Comptador) continue;
        element.text.replace(QStringLiteral("%p"), QString::number(pagina)).replace(QStringLiteral("%P"), total);
      }
    }
  }

  const Informe& informe_;
  Pagines& pagines_;
  int y_ = 0;
};

Pagines Informe::Maquetar(Recordset& files, const QString& titol) const {
  Pagines pagines{.titol = titol, .pagines = {}};
  if (files.RecordCount() > 0) Maquetador(*this, pagines).Fer(files);
  return pagines;
}
