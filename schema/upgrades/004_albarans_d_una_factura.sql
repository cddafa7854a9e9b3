-- An invoice asks for its delivery notes, of whatever company, without reading them all.

CREATE INDEX ALBARACAP_NUMFAC ON ALBARACAP (NUMFAC_AC);
