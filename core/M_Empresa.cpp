#include "core/M_Empresa.h"

#include "core/M_Funcions_Comuns.h"

namespace {

// One column of a company's row; null when there is no such row.
Valor Camp_Empresa(const char* camp, const std::string& empresa) {
  const Recordset rs(std::string("SELECT ") + camp + " FROM EMPRESES WHERE NIF_EMP = " + Text_SQL(empresa),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[camp] : Valor();
}

}  // namespace

std::array<std::string, 11> Dades_Empresa() {
  constexpr std::array<const char*, 11> camps = {"RAO_SOCIAL_EMP", "NIF_EMP",        "ADREÇA_EMP",   "TELEFON_EMP",
                                                 "CP_EMP",         "LOCALITAT_EMP",  "IMATGE_EMP",   "COMENTARI_EMP",
                                                 "PRESS_PEU1_EMP", "PRESS_PEU2_EMP", "FACT_PEU1_EMP"};
  std::array<std::string, 11> dades;
  const Recordset rs("SELECT * FROM EMPRESES WHERE ACTIU_EMP = -1 ORDER BY NIF_EMP", sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) {
    dades[0] = "Desconegut";
    return dades;
  }
  for (std::size_t i = 0; i < camps.size(); ++i) dades[i] = rs[camps[i]].Text();
  return dades;
}

bool Empresa_Te_IVA(const std::string& empresa) {
  return Nul_A_Defecte(Camp_Empresa("IVA_EMP", empresa)).Boolea();
}

bool Empresa_Te_RE(const std::string& empresa) {
  return Nul_A_Defecte(Camp_Empresa("RE_EMP", empresa)).Boolea();
}

std::string Nom_De_Empresa(const std::string& empresa) {
  const Valor nom = Camp_Empresa("RAO_SOCIAL_EMP", empresa);
  return nom.Es_Nul() ? "-" : nom.Text();
}

bool Empresa_Existeix(const std::string& empresa) {
  return !Camp_Empresa("NIF_EMP", empresa).Es_Nul();
}

void Empresa_Fixar(const std::string& empresa) {
  Recordset rs("SELECT * FROM USUARIS WHERE CODI_USU = " + Text_SQL(sessio.Usuari_Actual), sessio.Connexio_Comuna,
               Bloqueig::Optimista);
  if (rs.RecordCount() > 0) {
    rs.Set("EMPRESA_USU", Empresa_Existeix(empresa) ? empresa : "-");
    rs.Update();
  }
  sessio.Empresa_Actual = empresa;
  sessio.Nom_Empresa = Nom_De_Empresa(empresa);
  sessio.pantalla->Menu_Text("M_Sel_Empresa", Titol_Menu_Empresa());
}

void Demanar_Empresa() {
  const std::string triada = sessio.pantalla->Triar_Empresa(sessio.Empresa_Actual, sessio.Idioma_Actual);
  if (triada.empty()) {
    sessio.pantalla->Caixa(
        Missatge("Has de seleccionar una Empresa!", "¡Debe seleccionar una Empresa!", "You must select a Company!"),
        estil::critic);
  }
  Empresa_Fixar(triada);
}

std::string Titol_Menu_Empresa() {
  const std::string paraula = Missatge("Empresa: ", "Empresa: ", "Company: ");
  return paraula.empty() ? paraula : paraula + sessio.Nom_Empresa;
}

std::vector<Empresa_Activa> Empreses_Actives() {
  std::vector<Empresa_Activa> actives;
  Recordset rs("SELECT NIF_EMP, RAO_SOCIAL_EMP FROM EMPRESES WHERE ACTIU_EMP = -1 ORDER BY RAO_SOCIAL_EMP",
               sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) actives.push_back({rs["NIF_EMP"].Text(), rs["RAO_SOCIAL_EMP"].Text()});
  return actives;
}
