#pragma once
// Textos entre Qt y el núcleo: el núcleo trabaja en UTF-8 con std::string, las
// pantallas con QString. Lo leído de un campo va sin los blancos de los extremos.
#include <QComboBox>
#include <QLineEdit>
#include <QString>
#include <string>

namespace nomira::ventana {

inline QString aQt(const std::string& s) {
    return QString::fromStdString(s);
}
inline std::string deQt(const QString& q) {
    return q.trimmed().toStdString();
}
inline std::string deQt(const QLineEdit* campo) {
    return deQt(campo->text());
}
inline std::string deQt(const QComboBox* combo) {
    return deQt(combo->currentText());
}

}  // namespace nomira::ventana
