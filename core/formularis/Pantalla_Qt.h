// The screen port over Qt: what rules may ask of the screens. Boxes and the company chooser can be answered by a
// script.
#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "core/Pantalla.h"

class Pantalla_Qt : public QObject, public Pantalla {
  Q_OBJECT
 public:
  // When set, answers a box instead of the user.
  static std::function<Resposta(const QString& text, int estil, const QString& titol)> Contestador;
  // When set, picks a company instead of the user.
  static std::function<std::string(const std::string& actual, int idioma)> Triador_Empresa;

  Pantalla_Qt();

  bool Formulari_Carregat(std::string_view nom) const override;
  Document_Obert* Document(std::string_view nom_formulari) override;
  void Processar_Events() override;
  void Esperar(std::int32_t segons) override;
  void Bloquejar_Entrada() override;
  void Alliberar_Entrada() override;
  void Menu_Habilitat(std::string_view entrada, bool habilitat) override;
  void Menu_Visible(std::string_view entrada, bool visible) override;
  void Menu_Marcat(std::string_view entrada, bool marcat) override;
  void Menu_Text(std::string_view entrada, const std::string& text) override;

 protected:
  Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override;
  std::string Obrir_Tria_Empresa(const std::string& actual, int idioma) override;
  bool eventFilter(QObject* objecte, QEvent* event) override;

 private:
  bool bloquejada_ = false;
};
