// A base installation for one test: databases in a temporary folder, open in the session, with a user at work and a
// screen that remembers what it was asked. All of it goes, and the session is new again, with the object.
#pragma once

#include <stdlib.h>

#include <algorithm>
#include <cctype>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/M_Funcions_Comuns.h"
#include "schema/Installador.h"
#include "session/M_Inici.h"
#include "shell/M_Tipus.h"
#include "tests/servidor/Base_Servidor.h"

// An open document form: what rules wrote on it.
class Document_Fals : public Document_Obert {
 public:
  std::int64_t numero = 0;
  bool re = false;
  std::optional<double> import;
  std::optional<bool> estat;
  std::optional<bool> pagament;
  int capcaleres_desades = 0;
  int peus_refrescats = 0;

  Valor Numero_Document() const override { return numero; }
  bool Re_Marcat() const override { return re; }
  void Posar_Import(double euros) override { import = euros; }
  void Posar_Estat(bool valor) override { estat = valor; }
  void Posar_Pagament(bool valor) override { pagament = valor; }
  void Desar_Capcalera() override { ++capcaleres_desades; }
  void Refrescar_Peu() override { ++peus_refrescats; }
};

struct Caixa_Vista {
  std::string text;
  int estil = 0;
  std::string titol;
  bool operator==(const Caixa_Vista&) const = default;
};

class Pantalla_Falsa : public Pantalla {
 public:
  std::vector<Caixa_Vista> caixes;
  std::deque<Resposta> respostes;
  std::map<std::string, Document_Fals*> documents;  // open document forms
  std::set<std::string> formularis;                 // other open forms
  std::string empresa_triada;                       // what the company chooser gives
  int tries_empresa = 0;
  std::function<void()> en_processar_events = [] {};
  int events = 0;
  int segons_esperats = 0;
  bool entrada_blocada = false;
  std::map<std::string, bool> menus_habilitats;
  std::map<std::string, bool> menus_visibles;
  std::map<std::string, bool> menus_marcats;
  std::map<std::string, std::string> menus_textos;

  Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override {
    caixes.push_back({text, estil, titol});
    const bool pregunta = (estil & 7) != estil::simple;
    if (!pregunta) return Resposta::Ok;
    if (respostes.empty()) throw std::logic_error("nobody answered: " + text);
    const Resposta resposta = respostes.front();
    respostes.pop_front();
    return resposta;
  }
  bool Formulari_Carregat(std::string_view nom) const override {
    return formularis.contains(Majuscules(nom)) || documents.contains(Majuscules(nom));
  }
  Document_Obert* Document(std::string_view nom) override {
    const auto trobat = documents.find(Majuscules(nom));
    return trobat == documents.end() ? nullptr : trobat->second;
  }
  void Processar_Events() override {
    ++events;
    en_processar_events();
  }
  void Esperar(std::int32_t segons) override { segons_esperats += segons; }
  void Bloquejar_Entrada() override { entrada_blocada = true; }
  void Alliberar_Entrada() override { entrada_blocada = false; }
  std::string Obrir_Tria_Empresa(const std::string&, int) override {
    ++tries_empresa;
    return empresa_triada;
  }
  void Menu_Habilitat(std::string_view entrada, bool valor) override { menus_habilitats[std::string(entrada)] = valor; }
  void Menu_Visible(std::string_view entrada, bool valor) override { menus_visibles[std::string(entrada)] = valor; }
  void Menu_Marcat(std::string_view entrada, bool valor) override { menus_marcats[std::string(entrada)] = valor; }
  void Menu_Text(std::string_view entrada, const std::string& text) override {
    menus_textos[std::string(entrada)] = text;
  }

 private:
  static std::string Majuscules(std::string_view text) {
    std::string majuscules(text);
    std::transform(majuscules.begin(), majuscules.end(), majuscules.begin(),
                   [](unsigned char lletra) { return static_cast<char>(std::toupper(lletra)); });
    return majuscules;
  }
};

// A temporary folder that goes with the object.
class Carpeta_Temporal {
 public:
  Carpeta_Temporal() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "brollador-XXXXXX").string();
    if (!mkdtemp(plantilla.data())) throw std::runtime_error("no temporary folder");
    cami_ = plantilla;
  }
  ~Carpeta_Temporal() {
    std::error_code error;
    std::filesystem::remove_all(cami_, error);
  }
  Carpeta_Temporal(const Carpeta_Temporal&) = delete;
  Carpeta_Temporal& operator=(const Carpeta_Temporal&) = delete;
  const std::string& Cami() const { return cami_; }

 private:
  std::string cami_;
};

// A session as the program starts with it, for as long as the object lives.
class Sessio_Nova {
 public:
  Sessio_Nova() { Fer(); }
  ~Sessio_Nova() { Fer(); }
  Sessio_Nova(const Sessio_Nova&) = delete;
  Sessio_Nova& operator=(const Sessio_Nova&) = delete;

 private:
  static void Fer() {
    std::destroy_at(&sessio);
    std::construct_at(&sessio);
    Posar_Idioma_Errors(0);
    Deixar_Anar_Rellotge();
  }
};

// The base installation on the server, made once: copies of it are quick.
class Model_Servidor {
 public:
  static const Model_Servidor& Unic() {
    static const Model_Servidor model;
    return model;
  }
  std::string Dir_Dades() const { return carpeta_.Cami() + "/brollador"; }
  const Base_Servidor& Base() const { return base_; }

 private:
  Model_Servidor() { Crear_Base(Dir_Dades(), base_.Adreca()); }
  Carpeta_Temporal carpeta_;
  Base_Servidor base_;
};

class Installacio_Prova {
 public:
  Installacio_Prova() {
    Registrar_Tipus_De_Document();
    Crear();
    sessio.Dir_Dades = Dir_Dades();
    sessio.Fitxer_Ini = Dir_Dades() + "/Brollador.ini";
    sessio.Fitxer_Locals = Dir_Dades() + "/dadeslocals.db";
    sessio.Equip_Actual = "prova/un";
    Llegir_Ini();
    Obrir_Connexions();
    sessio.Usuari_Actual = "ADMIN";
    sessio.Nom_Usuari = "Administrador";
    sessio.Empresa_Actual = "B00000000";
    sessio.Nom_Empresa = "Empresa de prova";
    sessio.P_Comandes = "M";
    sessio.P_Albarans = "M";
    sessio.pantalla = &pantalla;
  }

  std::string Dir_Dades() const { return carpeta_.Cami() + "/brollador"; }

  const std::optional<Base_Servidor>& Base() const { return base_; }  // when it stands on the server

  Pantalla_Falsa pantalla;

 private:
  void Crear() {
    if (!Proves_Al_Servidor()) return Crear_Base(Dir_Dades());
    const Model_Servidor& model = Model_Servidor::Unic();
    std::filesystem::copy(model.Dir_Dades(), Dir_Dades(), std::filesystem::copy_options::recursive);
    base_.emplace(model.Base().Nom());
    std::ofstream(Dir_Dades() + "/Brollador.ini") << base_->Adreca() << '\n';
  }

  Carpeta_Temporal carpeta_;
  std::optional<Base_Servidor> base_;
  Sessio_Nova sessio_;  // closes the connections before the folder goes
};
