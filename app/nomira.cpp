// nomira [--base RUTA] [--captura CARPETA]
#include "frame/ventana/programa.h"
#include "screens/registro.h"

int main(int argc, char** argv) {
    nomira::pantallas::registrarTodas();
    return nomira::ventana::iniciarPrograma(argc, argv);
}
