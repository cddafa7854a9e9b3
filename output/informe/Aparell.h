// Pages on whatever takes them: a printer, a file, the preview.
#pragma once

#include <QPageLayout>
#include <QString>

struct Pagines;
class QPagedPaintDevice;

QPageLayout Full_A4(const Pagines& pagines);
// The pages from one to another, counted from 0. False when the device takes nothing.
bool Pintar_A(QPagedPaintDevice& aparell, const Pagines& pagines, int des_de, int fins_a);
// Raises 0x80004005: `on` took nothing.
[[noreturn]] void Llancar_No_Escrit(const QString& on);
