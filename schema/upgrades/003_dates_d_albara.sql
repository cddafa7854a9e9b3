-- Delivery notes of some days are found among all of a company's without reading them all.

CREATE INDEX ALBARACAP_DATA ON ALBARACAP (EMPRESA_AC, DATA_AC);
