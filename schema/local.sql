-- The local database of a terminal: its parameters, the texts of its screens, and what printing and payments work on.

-- The version of these definitions and of the texts, as a digest of them, in one row. A program that carries others makes
-- the whole file anew and keeps the parameters.
CREATE TABLE VERSIO (
  EMPREMTA_VER CODI NOT NULL
);

-- One row a parameter. A key that stands twice is told at the start, so the table lets it in.
CREATE TABLE CONFIGURACIO (
  Parametre CODI,
  Valor     TEXT
);

CREATE TABLE TEXTS (
  F_OBJECT   CODI NOT NULL,
  F_LANGUAGE CURT NOT NULL,
  F_CONTROL  CODI NOT NULL,
  F_PROPERTY CODI NOT NULL,
  F_TEXT     TEXT
);

CREATE INDEX TEXTS_OBJECTE ON TEXTS (F_OBJECT, F_LANGUAGE);


-- The lines of the document that is being printed: emptied before and after each print.

CREATE TABLE PRESSUPOSTLIN_VALORAT_IMPR (
  LIN_PL          CURT,
  ARTICLE_PL      CODI,
  DESCRIPCIO_PL   TEXT,
  UNITATS_PL      DOBLE,
  PREU_UNITARI_PL DOBLE,
  DTE_PL          DOBLE,
  TOTAL_IMPORT_PL DOBLE
);

CREATE TABLE COMANDALIN_VALORAT_IMPR (
  LIN_CL          CURT,
  ARTICLE_CL      CODI,
  DESCRIPCIO_CL   TEXT,
  UNITATS_CL      DOBLE,
  PREU_UNITARI_CL DOBLE,
  DTE_CL          DOBLE,
  TOTAL_IMPORT_CL DOBLE
);

CREATE TABLE ALBARALIN_VALORAT_IMPR (
  LIN_AL          CURT,
  ARTICLE_AL      CODI,
  DESCRIPCIO_AL   TEXT,
  UNITATS_AL      DOBLE,
  PREU_UNITARI_AL DOBLE,
  DTE_AL          DOBLE,
  TOTAL_IMPORT_AL DOBLE
);

CREATE TABLE FACTURALIN_VALORAT_IMPR (
  LIN_FL          CURT,
  ARTICLE_FL      CODI,
  DESCRIPCIO_FL   TEXT,
  UNITATS_FL      DOBLE,
  PREU_UNITARI_FL DOBLE,
  DTE_FL          DOBLE,
  TOTAL_IMPORT_FL DOBLE
);


-- Work lists of the payment flags. A document enters the first one once: the second insertion fails.

CREATE TABLE FLAG_PAGAMENTS_TEMP (
  DOCUMENT CODI NOT NULL,
  NUMALB   LLARG NOT NULL,
  FLAG     BOOLEA DEFAULT 0,
  UNIQUE (DOCUMENT, NUMALB)
);

CREATE TABLE PAGAMENTS_CLIENT (
  DOCUMENT    CODI,
  NUMALB      LLARG,
  DATA        DATA,
  CLIENT      TEXT,
  IMPORT      DOBLE DEFAULT 0,
  PAGAT       DOBLE DEFAULT 0,
  DIFERENCIAL DOBLE DEFAULT 0
);

CREATE TABLE CHECK_FLAG_PAGAMENTS_TEMP (
  COMANDA LLARG DEFAULT 0,
  CTEPAG  BOOLEA DEFAULT 0,
  ALBARA  LLARG DEFAULT 0,
  ATEPAG  BOOLEA DEFAULT 0,
  FACTURA LLARG DEFAULT 0,
  FTEPAG  BOOLEA DEFAULT 0
);
