// Pictures that rows name. A path comes from wherever the row was typed, so it is not trusted.
#pragma once

#include <QImage>
#include <QString>

// The picture of a file, in any format that the toolkit reads, turned as it says, no larger than `maxim` (dots) and in
// proportion. Null when the file is missing, is no regular file (a device or a pipe would never end), is larger than 16
// MiB, holds no picture, or is a drawing that refers to other files (or a compressed one): nothing is said.
QImage Imatge_De_Fitxer(const QString& fitxer, QSize maxim);
