#pragma once
// El arranque del programa de escritorio, de main() a la ventana principal.

namespace nomira::ventana {

int iniciarPrograma(int argc, char** argv);

}  // namespace nomira::ventana
