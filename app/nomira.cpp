// nomira [--base RUTA] [--captura CARPETA]
#include "frame/ventana/programa.h"

int main(int argc, char** argv) { return nomira::ventana::iniciarPrograma(argc, argv); }
