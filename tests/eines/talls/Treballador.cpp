#include "tests/eines/talls/Treballador.h"

#include <cstdio>
#include <random>

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Peu.h"
#include "payments/M_Flags.h"
#include "payments/M_Pagaments.h"
#include "sales/M_Acceptacio.h"
#include "sales/M_Albarans.h"
#include "sales/M_Comandes.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/eines/talls/Magatzem_De_Prova.h"

namespace talls {

namespace {

// The open form as the rules see it: the notes with an even number carry RE.
class Formulari_Mut : public Document_Obert {
 public:
  explicit Formulari_Mut(bool re) : re_(re) {}
  Valor Numero_Document() const override { return 0; }
  bool Re_Marcat() const override { return re_; }
  void Posar_Import(double) override {}
  void Posar_Estat(bool) override {}
  void Posar_Pagament(bool) override {}
  void Desar_Capcalera() override {}
  void Refrescar_Peu() override {}

 private:
  bool re_;
};

class Treballador {
 public:
  explicit Treballador(std::uint32_t llavor) : atzar_(llavor) {}

  void Un_Pas() {
    if (Qualsevol(0, 4) == 0) return Pagar();
    if (Qualsevol(0, 3) == 0) return Facturar_O_Desfer();
    if (Qualsevol(0, 1) == 0) return Passar_Una_Linia();
    const std::int64_t nota = Qualsevol(1, notes);
    const std::int64_t linies = Comptar_Linies_Albara(nota, empresa);
    if (linies > 0 && (linies > 8 || Qualsevol(0, 2) == 0)) {
      Esborrar(nota);
    } else {
      Afegir(nota);
    }
  }

 private:
  int Qualsevol(int des_de, int fins_a) { return std::uniform_int_distribution(des_de, fins_a)(atzar_); }

  Linia_Entrada Linia() {
    const int quin = Qualsevol(0, static_cast<int>(Articles().size()) - 1);
    const Article_Prova& article = Articles()[static_cast<std::size_t>(quin)];
    Linia_Entrada linia;
    linia.article = article.codi;
    linia.descripcio = "Article de prova";
    linia.iva_article = article.iva;
    linia.cost = 1;
    linia.unitats = Qualsevol(1, 12) / 2.0;
    linia.preu_unitari = article.preu;
    if (Qualsevol(0, 1) == 0) return linia;
    linia.comanda = Qualsevol(1, comandes);
    linia.comanda_lin = static_cast<std::int16_t>(quin + 1);
    return linia;
  }

  // A shortage of stock, or a note whose orders are paid, is part of the work: the line is refused and nothing of it
  // may stay.
  void Afegir(std::int64_t nota) {
    sessio.Error_Mostrat = false;
    Formulari_Mut formulari(nota % 2 == 0);
    const Capcalera_Oberta cap{nota, empresa, true, nota % 2 == 0};
    try {
      Transaccio transaccio(sessio.Connexio_Comuna);
      Recordset linies(SQL_Linies(tipus_albara, nota, empresa), sessio.Connexio_Comuna, Bloqueig::Optimista);
      Afegir_Linia_Albara(cap, Linia(), linies, formulari);
      transaccio.Confirmar();
    } catch (const Error_Brollador& error) {
      if (error.Numero() != errors::refusat) throw;
    }
  }

  // Nor may a line stay gone whose chain is not as it should be.
  void Esborrar(std::int64_t nota) {
    try {
      Esborrar_Una_Linia(nota);
    } catch (const Error_Brollador& error) {
      if (error.Numero() != errors::refusat) throw;
    }
  }

  // A payment where the flag lets it, or one less; its walk is a transaction of its own.
  void Pagar() {
    const bool comanda = Qualsevol(0, 2) == 0;
    const std::string document = comanda ? "P" : "A";
    const std::int64_t numero = Qualsevol(1, comanda ? comandes : notes);
    if (!Flag_Pagament(document, numero)) return;
    Recordset pagaments(SQL_Pagaments_Document(document, numero), sessio.Connexio_Comuna, Bloqueig::Pessimista);
    if (pagaments.RecordCount() > 0 && Qualsevol(0, 1) == 0) {
      Esborrar_Pagament(pagaments["ID_PAG"].Enter());
    } else {
      pagaments.AddNew();
      pagaments.Set("DOCUMENT_PAG", document);
      pagaments.Set("NUMALB_PAG", numero);
      pagaments.Set("EMPRESA_PAG", empresa);
      pagaments.Set("PAGAMENT_PAG", "EF");
      pagaments.Set("IMPORT_PAG", 1.0);
      pagaments.Update();
    }
    Propagar_Flag_Pagaments(document, numero);
  }

  // Some of the notes that are open become an invoice, or an invoice frees its notes.
  void Facturar_O_Desfer() {
    const Recordset facturats("SELECT DISTINCT NUMFAC_AC FROM ALBARACAP WHERE NUMFAC_AC <> ''", sessio.Connexio_Comuna);
    if (facturats.RecordCount() > 0 && Qualsevol(0, 1) == 0) {
      Esborrar_Document(tipus_factura, Valor(facturats[0].Text()).Enter(), empresa);
      return;
    }
    const Valor_Criteri numeros{.text = std::to_string(Qualsevol(primera_per_facturar, ultima_per_facturar)),
                                .text_y = std::to_string(ultima_per_facturar)};
    Facturar({.albarans = Consulta_Albarans({{"TXT_ALBARA", numeros}}, true) + " AND ESTAT_AC = 0",
              .numero = std::to_string(Seguent_Factura())});
  }

  // A line of the proposal goes on its way, or back: to an order, from there to a note. A shortage of stock stops it.
  void Passar_Una_Linia() {
    sessio.Error_Mostrat = false;
    const auto lin = static_cast<std::int16_t>(Qualsevol(1, static_cast<int>(Articles().size())));
    const Lloc_Linia comanda = Comanda_De_Linia_Pressupost(pressupost, empresa, lin);
    const auto linia = [](const Tipus_Document& tipus, const Valor& numero, std::int16_t quina) {
      return Linia_Oberta(tipus, {numero, empresa, true, false}, {"C2", "Qui demana preus"}, quina).Linia();
    };
    try {
      if (comanda.lin == 0) {
        Acceptar_Linia_Pressupost(linia(tipus_pressupost, pressupost, lin));
      } else if (Linia_Comanda_Servida(comanda.numero.Enter(), empresa, comanda.lin)) {
        Retirar_Linia_Servida(linia(tipus_comanda, comanda.numero, comanda.lin));
      } else if (Qualsevol(0, 1) == 0) {
        Servir_Linia_Sencera(linia(tipus_comanda, comanda.numero, comanda.lin));
      } else {
        Descartar_Linia_Pressupost(linia(tipus_pressupost, pressupost, lin));
      }
    } catch (const Error_Brollador& error) {
      if (error.Numero() != errors::refusat) throw;
    }
  }

  void Esborrar_Una_Linia(std::int64_t nota) {
    Formulari_Mut formulari(nota % 2 == 0);
    Transaccio transaccio(sessio.Connexio_Comuna);
    Recordset linies(SQL_Linies(tipus_albara, nota, empresa), sessio.Connexio_Comuna);
    linies.Move(Qualsevol(0, static_cast<int>(linies.RecordCount()) - 1));
    Esborrar_Linia_Albara(nota, empresa, static_cast<std::int16_t>(linies["LIN_AL"].Enter()),
                          linies["ARTICLE_AL"].Text(), linies["UNITATS_AL"].Doble());
    Buidar_Peu(tipus_albara, nota, empresa);
    Calcular_Peu(tipus_albara, nota, empresa, formulari);
    Propagar_Flag_Pagaments("A", nota);
    transaccio.Confirmar();
  }

  std::mt19937 atzar_;
};

}  // namespace

std::string Treballar_Sense_Fi(const Lloc& lloc, std::uint32_t llavor) {
  try {
    Pantalla_Muda pantalla;
    Obrir_Sessio(lloc, pantalla);
    Treballador treballador(llavor);
    std::puts("begun");
    std::fflush(stdout);
    for (;;) treballador.Un_Pas();
  } catch (const Error_Brollador& error) {
    return std::to_string(error.Numero()) + " - " + error.Descripcio();
  }
}

}  // namespace talls
