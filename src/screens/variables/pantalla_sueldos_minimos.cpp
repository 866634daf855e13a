#include "screens/variables/pantalla_sueldos_minimos.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "common/formato.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "frame/ventana/texto_qt.h"
#include "master/catalogos.h"
#include "screens/variables/pantalla_aumentos.h"

namespace nomira::pantallas {

using ventana::deQt;

namespace {

std::string texto(const QComboBox* c) {
    return common::textoDeCatalogo(deQt(c));
}

const char* const kFaltan[] = {
    "Debe completar el campo Grupo Con. Salarios.",
    "Debe completar los campos Grupo y SubGrupo Con. Salarios.",
    "Debe completar los campos Grupo, SubGrupo Con. Salarios y Sector.",
    "Debe completar los campos Grupo, SubGrupo Con. Salarios, Sector y Categoría.",
};

}  // namespace

PantallaSueldosMinimos::PantallaSueldosMinimos(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form407", "Sueldos Mínimos por Categoría", padre) {
    // Cada lista se filtra por los textos de las anteriores (Like '*texto').
    grupo = new ventana::ComboCatalogo(
        sesion, "Form29", [this] { return master::valoresCatalogo(base(), "grupoconsal"); });
    subgrupo = new ventana::ComboCatalogo(sesion, "Form290", [this] {
        return master::valoresCatalogo(base(), "subgrupoconsal", {{"nombre", texto(grupo)}});
    });
    sector = new ventana::ComboCatalogo(sesion, "Form39", [this] {
        return master::valoresCatalogo(base(), "sectores",
                                       {{"nombre", texto(grupo)}, {"nombre2", texto(subgrupo)}});
    });
    categoria = new ventana::ComboCatalogo(sesion, "Form390", [this] {
        return master::valoresCatalogo(
            base(), "categorias",
            {{"nombre", texto(grupo)}, {"nombre2", texto(subgrupo)}, {"nombre3", texto(sector)}});
    });
    auto* campos = new QFormLayout;
    const std::pair<const char*, QWidget*> filas[] = {{"Grupo Con. Salarios", grupo},
                                                      {"SubGrupo Con. Salarios", subgrupo},
                                                      {"Sector", sector},
                                                      {"Categoría", categoria},
                                                      {"Fecha Ini.", fechaini},
                                                      {"Fecha Fin", fechafin},
                                                      {"Sueldo", sueldo}};
    const char* nombres[] = {"grupo",    "subgrupo", "sector", "categoria",
                             "fechaini", "fechafin", "sueldo"};
    int i = 0;
    for (const auto& [etiqueta, campo] : filas) {
        campo->setObjectName(nombres[i++]);
        campos->addRow(etiqueta, campo);
    }
    sueldo->setMaximumWidth(160);
    grilla->setObjectName("grilla");
    // La lista es la del sector elegido: un clic trae la categoría y el período de
    // la fila; doble clic o Enter busca su sueldo.
    grilla->llenarAlElegir({{1, categoria}, {2, fechaini}, {3, fechafin}});
    connect(grilla, &QAbstractItemView::clicked, this, [this] { olvidarHallado({sueldo}); });
    connect(grilla, &ventana::Grilla::abrir, this, [this] { Buscar_Click(); });
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    auto* botones = botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { Buscar_Click(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }}});
    auto* porcaum = new QPushButton("Actualizar Sueldos");
    porcaum->setObjectName("Porcaum");
    porcaum->setAutoDefault(false);
    connect(porcaum, &QPushButton::clicked, this, [this] { Porcaum_Click(); });
    botones->addWidget(porcaum);
    todo->addLayout(botones);
    todo->addWidget(grilla, 1);
    pedirTamano(640, 560);

    // Enter en cada combo pide los anteriores y carga el siguiente.
    ventana::ComboCatalogo* siguientes[] = {subgrupo, sector, categoria, nullptr};
    ventana::ComboCatalogo* combos[] = {grupo, subgrupo, sector, categoria};
    for (int n = 0; n < 4; ++n)
        alPulsarEnter(combos[n], [this, n, sig = siguientes[n]] {
            if (!validarHasta(n + 1)) return false;
            if (sig) sig->recargar();
            if (n == 2) Consultar_Click();
            return true;
        });
    alPulsarEnter(fechaini, [this] {
        if (completos() == 4 && fechaini->formatoValido(false)) return true;
        advertir(
            "Debe completar los campos Grupo, SubGrupo Con. Salarios, Sector, Categoría y "
            "FechaIni debe tener el formato: dd/MM/aa.");
        return false;
    });
    alPulsarEnter(fechafin, [this] {
        if (completos() == 4 && fechaini->formatoValido(false) && fechafin->formatoValido(false)) {
            Buscar_Click();
            return false;
        }
        advertir(
            "Debe completar los campos Grupo, SubGrupo Con. Salarios, Sector, Categoría, "
            "FechaIni y FechaFin debe tener el formato: dd/MM/aa.");
        return false;
    });
    limpiar();
}

master::CategoriaLaboral PantallaSueldosMinimos::elegida() const {
    return {texto(grupo), texto(subgrupo), texto(sector), texto(categoria)};
}

int PantallaSueldosMinimos::completos() const {
    int n = 0;
    for (const auto* c : {grupo, subgrupo, sector, categoria}) {
        if (deQt(c).empty()) break;
        ++n;
    }
    return n;
}

bool PantallaSueldosMinimos::validarHasta(int campos) {
    if (completos() >= campos) return true;
    advertir(kFaltan[campos - 1]);
    return false;
}

void PantallaSueldosMinimos::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (completos() < 4 || deQt(fechaini).empty() || deQt(fechafin).empty())
            return advertir(
                "Debe completar los campos Grupo, SubGrupo Con. Salarios, Sector, "
                "Categoría, FechaIni y FechaFin.");
        const auto ini = common::Fecha::desdeTexto(deQt(fechaini));
        const auto fin = common::Fecha::desdeTexto(deQt(fechafin));
        if (!ini || !fin) throw common::Fallo(13, "No coinciden los tipos");
        const auto hallado = master::buscarSueldoMinimo(base(), elegida(), *ini, *fin);
        habilitarSegunHallado(hallado.has_value());
        if (hallado) {
            sueldo->setText(QString::fromStdString(common::numeroATexto(hallado->sueldo)));
        } else {
            sueldo->clear();
            sueldo->setFocus();
        }
    });
}

void PantallaSueldosMinimos::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        std::vector<std::vector<std::string>> celdas;
        int n = 0;
        for (const auto& m : master::listarSueldosMinimos(base(), elegida()))
            celdas.push_back({std::to_string(++n), m.categoria.categoria, m.fechaini.ddmmyy(),
                              m.fechafin.ddmmyy(), common::formatear(m.sueldo, "##,##0.00")});
        grilla->mostrar({"Nro", "Categoría", "Fecha Ini.", "Fecha Fin", "Sueldo"}, celdas, {0, 4});
    });
}

void PantallaSueldosMinimos::Agregar_Click() {
    if (!camposValidos()) return;
    intentar("Agregar_Click", [this] {
        if (!confirmar("Agregar registro")) return;
        const auto ini = common::Fecha::desdeTexto(deQt(fechaini));
        const auto fin = common::Fecha::desdeTexto(deQt(fechafin));
        if (!ini || !fin || !common::esNumerico(sueldo->valor()))
            throw common::Fallo(13, "No coinciden los tipos");
        master::agregarSueldoMinimo(base(),
                                    {elegida(), *ini, *fin, common::textoANumero(sueldo->valor())});
        Consultar_Click();
        limpiar();
    });
}

void PantallaSueldosMinimos::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar registro")) return;
        const auto ini = common::Fecha::desdeTexto(deQt(fechaini));
        const auto fin = common::Fecha::desdeTexto(deQt(fechafin));
        if (!ini || !fin) throw common::Fallo(13, "No coinciden los tipos");
        master::eliminarSueldoMinimo(base(), elegida(), *ini, *fin);
        Consultar_Click();
        limpiar();
    });
}

void PantallaSueldosMinimos::Porcaum_Click() {
    intentar("Porcaum_Click", [this] {
        if (completos() < 3) return advertir(kFaltan[2]);
        abrirHija(new PantallaAumentos(sesion_, elegida(), this), [this] { Consultar_Click(); });
    });
}

// Deja la categoría elegida y vacía el período y el sueldo.
void PantallaSueldosMinimos::limpiar() {
    olvidarHallado({fechaini, fechafin, sueldo});
    (completos() == 4 ? static_cast<QWidget*>(fechaini) : grupo)->setFocus();
}

}  // namespace nomira::pantallas
