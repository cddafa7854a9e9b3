// Pages on whatever takes them: a printer, a file, the preview.
#pragma once

#include <QPageLayout>
#include <QString>
#include <vector>

struct Pagines;
class QPagedPaintDevice;

QPageLayout Full_A4(const Pagines& pagines);
// These pages, counted from 1, in this order. False when the device takes nothing.
bool Pintar_A(QPagedPaintDevice& aparell, const Pagines& pagines, const std::vector<int>& quines);
std::vector<int> Totes_Les_Pagines(const Pagines& pagines);
// Raises 0x80004005: `on` took nothing.
[[noreturn]] void Llancar_No_Escrit(const QString& on);
