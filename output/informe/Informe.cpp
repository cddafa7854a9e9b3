#include "output/informe/Informe.h"

#include <utility>

#include "core/M_Textos.h"
#include "core/dades/Error_Brollador.h"

Informe::Informe(const Definicio_Informe& definicio) : definicio_(definicio) {
  for (const auto& control : definicio_.controls) {
    estats_.push_back({.control = &control, .text = control.text, .lloc = control.lloc});
  }
}

const Estat_Control& Informe::Cercar(const QString& nom) const {
  for (const auto& estat : estats_) {
    if (nom.compare(estat.control->nom, Qt::CaseInsensitive) == 0) return estat;
  }
  Llancar_Error(errors::camp_no_trobat, definicio_.nom, nom.toStdString());
}

Estat_Control& Informe::Cercar(const QString& nom) {
  return const_cast<Estat_Control&>(std::as_const(*this).Cercar(nom));
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
void Informe::Amplada(const QString& control, int esquerra, int amplada) {
  QRect& lloc = Cercar(control).lloc;
  lloc = {esquerra, lloc.y(), amplada, lloc.height()};
}
void Informe::Data_Format(const QString& control, const char* mascara) {
  Cercar(control).mascara = mascara;
}
void Informe::Picture(const QString& control, const QImage& imatge) {
  Cercar(control).imatge = imatge;
}
QSize Informe::Mida_Imatge(const QString& control) const {
  const Estat_Control& estat = Cercar(control);
  return estat.imatge.isNull() ? QSize(0, 0) : estat.imatge.size().scaled(estat.lloc.size(), Qt::KeepAspectRatio);
}

void Informe::Traduir() {
  for (const auto& fila : Textos_De(definicio_.nom)) {
    const QString adreca = QString::fromStdString(fila.control);
    const QString nom = adreca.section(u'.', 0, 0);
    const int seccio = adreca.section(u'.', 1, 1).toInt();
    for (auto& estat : estats_) {
      const bool es = nom.compare(estat.control->nom, Qt::CaseInsensitive) == 0;
      if (es && static_cast<int>(estat.control->seccio) == seccio) estat.text = QString::fromStdString(fila.text);
    }
  }
}
