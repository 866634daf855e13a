#pragma once
// El arranque del programa de escritorio, de main() a la ventana principal.
// Las pantallas ya tienen que estar registradas.

namespace nomira::ventana {

int iniciarPrograma(int argc, char** argv);

}  // namespace nomira::ventana
