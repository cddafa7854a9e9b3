-- The database tells its version: the number of the last file of this folder that it has been through.

CREATE TABLE VERSIO (
  NUMERO_VER LLARG NOT NULL
);
