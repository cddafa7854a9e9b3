#include "masters/F_Mestres.h"

#include "core/formularis/Formularis_Oberts.h"
#include "masters/F_Article.h"
#include "masters/F_ArticlesMC.h"
#include "masters/F_ArticlesMCS.h"
#include "masters/F_ArticlesSelC.h"
#include "masters/F_Client.h"
#include "masters/F_ClientsM.h"
#include "masters/F_Proveidor.h"
#include "masters/F_ProveidorsM.h"

void Registrar_Formularis_Mestres() {
  Registrar_Formulari(QStringLiteral("F_CLIENTSM"), [] { return new F_ClientsM; });
  Registrar_Formulari(QStringLiteral("F_CLIENT"), [] { return new F_Client; });
  Registrar_Formulari(QStringLiteral("F_PROVEIDORSM"), [] { return new Llista_Descrita(Llista_Proveidors()); });
  Registrar_Formulari(QStringLiteral("F_PROVEIDOR"), [] { return new F_Proveidor; });
  Registrar_Formulari(QStringLiteral("F_ARTICLESSELC"), [] { return new F_ArticlesSelC; });
  Registrar_Formulari(QStringLiteral("F_ARTICLESMC"), [] { return new F_ArticlesMC; });
  Registrar_Formulari(QStringLiteral("F_ARTICLESMCS"), [] { return new F_ArticlesMCS; });
  Registrar_Formulari(QStringLiteral("F_ARTICLE"), [] { return new F_Article; });
}
