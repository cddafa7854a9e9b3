#include "session/M_Empresa.h"

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "session/M_Usuaris.h"

namespace {

constexpr Lloc clau = {"EMPRESES", "NIF_EMP"};
constexpr Lloc us[] = {{"ALBALMCAP", "EMPRESA_AAC"}, {"ALBARACAP", "EMPRESA_AC"},     {"ALBCOMPRACAP", "EMPRESA_ACC"},
                       {"COMANDACAP", "EMPRESA_CC"}, {"FACTURACAP", "EMPRESA_FC"},    {"MOVIMIENTOS", "EMPRESA_MOV"},
                       {"PAGAMENTS", "EMPRESA_PAG"}, {"PRESSUPOSTCAP", "EMPRESA_PC"}, {"REBUTS", "EMPRESA_RE"},
                       {"STOCK", "EMPRESA_ST"}};

Valor Camp_Empresa(const char* camp, const std::string& empresa) {
  return Camp_De(clau, empresa, camp);
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

std::string Nova_Empresa() {
  std::string codi = Proxim_Codi("EMPRESES");
  Crear_Fila("EMPRESES", {{"NIF_EMP", codi},
                          {"RAO_SOCIAL_EMP", "Empresa " + codi},
                          {"IVA_EMP", true},
                          {"RE_EMP", false},
                          {"ACTIU_EMP", true}});
  return codi;
}

void Esborrar_Empresa(const std::string& empresa, const std::string& rao_social) {
  if (!Confirmar(
          {"Segur d'esborrar l'empresa ", "¿Seguro de eliminar la empresa ", "Are you sure to delete the company "},
          rao_social))
    return;
  if (Empresa_En_Us(empresa)) {
    sessio.pantalla->Caixa(Missatge("Aquesta empresa no es pot esborrar perquè té registres.",
                                    "Esta empresa no se puede eliminar porque tiene registros.",
                                    "Unable to delete this company because it owns some rows."),
                           estil::simple);
    return;
  }
  sessio.Connexio_Comuna.Execute("DELETE * FROM EMPRESES WHERE NIF_EMP = " + Codi_SQL(empresa));
}

bool Empresa_En_Us(const std::string& empresa) {
  return Es_En_Us(us, empresa);
}

std::string SQL_Empreses() {
  return "SELECT NIF_EMP, RAO_SOCIAL_EMP, LOCALITAT_EMP, TELEFON_EMP, FAX_EMP, EMAIL_EMP, ACTIU_EMP FROM EMPRESES "
         "ORDER BY "
         "RAO_SOCIAL_EMP";
}

std::string SQL_Empresa(const std::string& empresa) {
  return "SELECT * FROM EMPRESES WHERE NIF_EMP = " + Codi_SQL(empresa);
}
