// prova_retrat NEW KEPT: two pictures show the same screen. A clock or a cursor may differ, not a control.
#include <QImage>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr double tolerancia = 0.003;  // of all points
constexpr int diferencia_visible = 48;

bool Diferents(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) >
         diferencia_visible;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("prova_retrat NEW KEPT\n", stderr);
    return 2;
  }
  const QImage nova = QImage(QString::fromLocal8Bit(argv[1])).convertToFormat(QImage::Format_RGB32);
  const QImage desada = QImage(QString::fromLocal8Bit(argv[2])).convertToFormat(QImage::Format_RGB32);
  if (nova.isNull() || nova.size() != desada.size()) {
    std::printf("%s: no picture of the size of %s\n", argv[1], argv[2]);
    return 1;
  }
  int punts = 0;
  for (int y = 0; y < nova.height(); ++y) {
    for (int x = 0; x < nova.width(); ++x) punts += Diferents(nova.pixel(x, y), desada.pixel(x, y)) ? 1 : 0;
  }
  const double part = static_cast<double>(punts) / (nova.width() * nova.height());
  if (part <= tolerancia) return 0;
  std::printf("%s is not what the screen shows today (%.1f %% of it differs): cp %s %s\n", argv[2], part * 100, argv[1],
              argv[2]);
  return 1;
}
