#include "core/formularis/Pares.h"
#include "shell/Taules.h"

namespace {

constexpr Pare pares[] = {
    {u"F_ALBARA", u"F_ALBARANSM", true},
    {u"F_ALBARA", u"F_PAGAMENTSM", true},
    {u"F_ALBARA", u"F_PAGPENDM", true},
    {u"F_ALBARANSM", u"F_ALBARANSS"},
    {u"F_ALBCOMPRA", u"F_ALBCOMPRESM", true},
    {u"F_ALBCOMPRESM", u"F_ALBCOMPRESS"},
    {u"F_ALBMAG", u"F_ALBMAGM", true},
    {u"F_ALBMAGM", u"F_ALBMAGS", false, Mena_Pare::Creat},
    {u"F_ARTICLE", u"F_ARTICLESMC", true},
    {u"F_CLIENT", u"F_CLIENTSM", true},
    {u"F_COMANDA", u"F_COMANDESM", true},
    {u"F_COMANDA", u"F_PAGAMENTSM", true},
    {u"F_COMANDA", u"F_PAGPENDM", true},
    {u"F_COMANDESM", u"F_COMANDESS", false, Mena_Pare::Creat},
    {u"F_DETALL_LINIA", u"F_PRESSUPOST", false, Mena_Pare::Per_Crida, "F_PRESSUPOST"},
    {u"F_DETALL_LINIA", u"F_COMANDA", false, Mena_Pare::Per_Crida, "F_COMANDA"},
    {u"F_DETALL_LINIA", u"F_ALBARA", false, Mena_Pare::Per_Crida, "F_ALBARA"},
    {u"F_DETALL_LINIA", u"F_FACTURA", false, Mena_Pare::Per_Crida, "F_FACTURA"},
    {u"F_DETALL_LINIAC", u"F_ALBCOMPRA"},
    {u"F_EMPRESA", u"F_EMPRESESM", true},
    {u"F_FACTURA", u"F_FACTURESM", true},
    {u"F_FACTURA", u"F_PAGAMENTSM", true},
    {u"F_FACTURA", u"F_PAGPENDM", true},
    {u"F_FACTURAR", u"F_ALBARANSM", true},
    {u"F_FACTURESM", u"F_FACTURESS"},
    {u"F_MOVIMENTSM", u"F_MOVIMENTSS"},
    {u"F_PAGAMENTSM", u"F_PAGAMENTSS"},
    {u"F_PAGDOC", u"F_ALBARA", false, Mena_Pare::Per_Tipus_Pagament, "A"},
    {u"F_PAGDOC", u"F_COMANDA", false, Mena_Pare::Per_Tipus_Pagament, "P"},
    {u"F_PAGDOC", u"F_FACTURA", false, Mena_Pare::Per_Tipus_Pagament, "F"},
    {u"F_PAGPENDM", u"F_PAGAMENTSS"},
    {u"F_PRESSUPOST", u"F_PRESSUPOSTOSM", true},
    {u"F_PRESSUPOSTOSM", u"F_PRESSUPOSTOSS"},
    {u"F_PROVEIDOR", u"F_PROVEIDORSM", true},
    {u"F_USUARI", u"F_USUARISM", true},
};

constexpr const char16_t* sense_pares[] = {
    u"F_ALBARANSS",    u"F_ALBCOMPRESS", u"F_ALBMAGS",         u"F_ARTICLESMC",    u"F_ARTICLESMCS", u"F_ARTICLESSELC",
    u"F_CERCA",        u"F_CLIENTSM",    u"F_COMANDESMCS",     u"F_COMANDESS",     u"F_CPM",         u"F_EMPRESESM",
    u"F_FACTURESS",    u"F_FAMILIESM",   u"F_FORMESPAGAMENTM", u"F_HELP",          u"F_IVASM",       u"F_MAGATZEMSM",
    u"F_MARQUESM",     u"F_MOVIMENTSS",  u"F_PAGAMENTSS",      u"F_PRESSUPOSTOSS", u"F_PROVEIDORSM", u"F_STOCKSM",
    u"F_SUBFAMILIESM", u"F_USUARISM",    u"F_VENCIMENTSM",
};

}  // namespace

void Posar_Taula_De_Pares() {
  Fixar_Pares(pares, sense_pares);
}
