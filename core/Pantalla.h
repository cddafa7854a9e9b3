// The screen port: the little that a rule may ask of the screens. The Qt screens implement it; tests of rules use a
// fake of a few lines. Nothing else of a form is visible from a rule.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/dades/Valor.h"

// Styles of a message box; one of the buttons plus one of the icons.
namespace estil {
constexpr int simple = 0;
constexpr int ok_cancel = 1;
constexpr int si_no = 4;
constexpr int critic = 16;
constexpr int pregunta = 32;
constexpr int exclamacio = 48;
constexpr int informacio = 64;
}  // namespace estil

enum class Resposta { Ok = 1, Cancel = 2, Si = 6, No = 7 };

// What an open document form offers to rules.
class Document_Obert {
 public:
  virtual ~Document_Obert() = default;
  virtual Valor Numero_Document() const = 0;       // of the document that it shows
  virtual bool Re_Marcat() const = 0;              // its CHK_RE_*
  virtual void Posar_Import(double euros) = 0;     // its TXT_IMPORT_*
  virtual void Posar_Estat(bool estat) = 0;        // its CHK_ESTAT_*
  virtual void Posar_Pagament(bool pagament) = 0;  // its CHK_PAGAMENT_*
  virtual void Desar_Capcalera() = 0;
  virtual void Refrescar_Peu() = 0;  // requeries the foot
};

class Pantalla {
 public:
  virtual ~Pantalla() = default;

  // A message box; titles other than the system's name are rare. Input is let go for it. Nothing opens between the
  // first write of a transaction and its end, since all other terminals would wait for whoever has to answer: a message
  // waits for the end (Mostrar_Pendents), and a question is a mistake of ours, which std::logic_error tells.
  Resposta Caixa(const std::string& text, int estil, const std::string& titol = "Brollador");
  // The messages that waited, in their order; none while there is still something written and not committed.
  void Mostrar_Pendents();

  // Is a form of this name loaded; names are compared without case.
  virtual bool Formulari_Carregat(std::string_view nom) const = 0;
  // The document form of this name, null when it is not loaded.
  virtual Document_Obert* Document(std::string_view nom_formulari) = 0;

  virtual void Processar_Events() = 0;            // lets pending events run
  virtual void Esperar(std::int32_t segons) = 0;  // lets events run for so long
  virtual void Bloquejar_Entrada() = 0;           // keys and clicks are swallowed until released
  virtual void Alliberar_Entrada() = 0;

  // The company chooser: the NIF of the company picked, or the empty text. A question too.
  std::string Triar_Empresa(const std::string& actual, int idioma);

  // Entries of the main menu, by name.
  virtual void Menu_Habilitat(std::string_view entrada, bool habilitat) = 0;
  virtual void Menu_Visible(std::string_view entrada, bool visible) = 0;
  virtual void Menu_Marcat(std::string_view entrada, bool marcat) = 0;
  virtual void Menu_Text(std::string_view entrada, const std::string& text) = 0;

 protected:
  virtual Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) = 0;
  virtual std::string Obrir_Tria_Empresa(const std::string& actual, int idioma) = 0;

 private:
  struct Missatge_Pendent {
    std::string text;
    int estil;
    std::string titol;
  };
  std::vector<Missatge_Pendent> pendents_;
};

// Raises std::logic_error when something is written and not committed: for whatever is about to wait for the user.
void Exigir_Res_Escrit(std::string_view que);

// Where the session keeps its screen port. Using it before a screen is set is a mistake of ours, and says so.
class Port_Pantalla {
 public:
  Port_Pantalla() = default;
  Port_Pantalla(Pantalla* pantalla) : pantalla_(pantalla) {}
  Pantalla* operator->() const;  // raises std::logic_error when there is none
  operator Pantalla*() const { return pantalla_; }

 private:
  Pantalla* pantalla_ = nullptr;
};
