// Form42 con el teclado: el mes entero de una persona (haberes, una fila
// tecleada, descuentos) con las cifras del motor en pantalla, el haber que no
// entra después de los descuentos, la licencia con sus preguntas y el período,
// la pregunta por un mes que no es el anterior, la anterior y la siguiente
// persona activa, y las corridas de toda la empresa con su avance y Detener.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include "common/formato.h"
#include "engine/calculos/liquido.h"
#include "engine/mes/mes_persona.h"
#include "engine/mes/renglon.h"
#include "engine/validacion/validacion.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/ventana_principal.h"
#include "master/variables.h"
#include "pantallas/apoyo_pantallas.h"
#include "screens/haberes/textos_haberes.h"

using namespace nomira;

namespace {

// Hoy es el 15/03/2026 (CarpetaTemporal): el mes anterior es 02/26.
class PantallaHaberes : public pruebas::EmpresaAcme {
  protected:
    // La empresa, el mes y la persona, como los escribe el empleado.
    void abrirMes(const QString& mes, const QString& nombre) {
        abrir("Form42");
        teclear("empresa", "ACME");
        teclear("mes", mes);
        teclear("nombre", nombre);
    }

    double sumaTipo(const std::string& nombre, const char* tipo) {
        return sesion.base
            ->consulta(
                "SELECT COALESCE(SUM(total), 0) AS s FROM habydesc WHERE nombre = ? AND "
                "fecha = '2026-02-01' AND tipo = ?",
                {nombre, std::string(tipo)})
            .primera()
            .real("s");
    }
    long filas(const std::string& donde) {
        return static_cast<long>(
            sesion.base->consulta("SELECT COUNT(*) AS n FROM habydesc WHERE " + donde)
                .primera()
                .entero("n"));
    }
    static QString pesos(double x) {
        return QString::fromStdString(common::formatear(x, "##,##0.00"));
    }

    const common::Mes febrero{2026, 2};
};

// El nombre tecleado en minúsculas es la persona de la lista: se abre sin
// avisar que no existe.
TEST_F(PantallaHaberes, ElNombreEnOtrasMayusculasEligeLaPersona) {
    persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
    abrirMes("0226", "Perez, juan");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
    EXPECT_EQ(w<QComboBox>("nombre")->currentText(), "PEREZ, JUAN");
    EXPECT_EQ(texto("nrofun"), "1");
    // Vaciada la persona, Nro Fun. no sigue mostrando su número.
    w<QComboBox>("nombre")->lineEdit()->selectAll();
    QTest::keyClick(w<QComboBox>("nombre")->lineEdit(), Qt::Key_Backspace);
    EXPECT_TRUE(texto("nrofun").isEmpty());
}

// F12 valida el mes de la empresa y muestra los hallazgos juntos, para copiarlos.
TEST_F(PantallaHaberes, ValidarMuestraLosHallazgosEnUnaLista) {
    abrir("Form42");
    pulsar("Validar");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposValidacion);

    persona("PEREZ, JUAN", "1", "30000", "2020-01-01");  // sin sucursal
    abrirMes("0226", "PEREZ, JUAN");
    pulsar("Validar");
    auto* lista = pantalla->findChild<QDialog*>("ListaValidacion");
    ASSERT_NE(lista, nullptr);
    auto* tabla = lista->findChild<QTableWidget*>("hallazgos");
    bool sucursal = false;
    for (int i = 0; i < tabla->rowCount(); ++i)
        if (tabla->item(i, 0)->text() == "4" && tabla->item(i, 1)->text() == "PEREZ, JUAN")
            sucursal = true;
    EXPECT_TRUE(sucursal);
    lista->findChild<QPushButton*>("Copiar")->click();
    EXPECT_TRUE(QApplication::clipboard()->text().contains(
        "4. PEREZ, JUAN: El funcionario PEREZ, JUAN no tiene asignado el nrosuc donde trabaja."));
    EXPECT_TRUE(QApplication::clipboard()->text().endsWith("Validación terminada.\n"));
    lista->findChild<QPushButton*>("Salir")->click();
}

// Las teclas Alt de la pantalla llegan a su botón o a su campo aunque el foco esté
// en una línea de texto (que aceptaría la letra), y ninguna letra se repite: una
// letra repetida sólo pasa el foco de uno a otro sin pulsar ninguno.
TEST_F(PantallaHaberes, LasTeclasAltPulsanSuBotonDesdeLosCampos) {
    persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
    abrirMes("0226", "PEREZ, JUAN");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
    ASSERT_TRUE(w("codigo")->hasFocus());
    QTest::keyClick(w("codigo"), Qt::Key_H, Qt::AltModifier);
    QTest::qWait(250);  // la tecla de un botón lo pulsa y lo suelta 100 ms después
    EXPECT_EQ(columna("haberes", 1), (std::vector<std::string>{"SUELDO", "ANTIGUEDAD"}));
    EXPECT_TRUE(texto("codigo").isEmpty());
    // Alt+N vuelve a la persona (para dejarla vacía y correr toda la empresa).
    QTest::keyClick(w("codigo"), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(w<QComboBox>("nombre")->hasFocus());

    std::map<QChar, QString> letras;
    auto anotar = [&](const QString& texto) {
        const auto i = texto.indexOf('&');
        if (i < 0 || i + 1 >= texto.size()) return;
        const QChar letra = texto.at(i + 1).toUpper();
        EXPECT_FALSE(letras.count(letra))
            << letras[letra].toStdString() << " y " << texto.toStdString();
        letras[letra] = texto;
    };
    for (auto* b : pantalla->findChildren<QAbstractButton*>()) anotar(b->text());
    for (auto* l : pantalla->findChildren<QLabel*>())
        if (l->buddy()) anotar(l->text());
    EXPECT_GE(letras.size(), 8u);
}

TEST_F(PantallaHaberes, UnMesEnteroDesdeElTeclado) {
    persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
    abrirMes("0226", "PEREZ, JUAN");
    EXPECT_EQ(texto("mes"), "02/26");        // la barra llega sola
    EXPECT_TRUE(dialogo.preguntas.empty());  // es el mes anterior: nada que preguntar
    EXPECT_EQ(texto("nrofun"), "1");
    EXPECT_TRUE(w("codigo")->hasFocus());
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());

    pulsar("haberesDelMes");
    EXPECT_EQ(columna("haberes", 1), (std::vector<std::string>{"SUELDO", "ANTIGUEDAD"}));
    EXPECT_EQ(texto("totalhab"), "30,000.00");

    // Una fila tecleada: Enter en el código la busca (nueva: Agregar), en la
    // cantidad la calcula (fórmula 0) y en el total la guarda.
    teclear("codigo", "58");
    EXPECT_EQ(texto("concepto"), "TRANSPORTE");
    EXPECT_TRUE(w<QPushButton>("Agregar")->isEnabled());
    EXPECT_FALSE(w<QPushButton>("Modificar")->isEnabled());
    EXPECT_TRUE(w("cant")->hasFocus());
    teclear("cant", "1");
    EXPECT_EQ(texto("total"), "0.00");  // con la forma de la grilla
    EXPECT_TRUE(w("total")->hasFocus());
    teclear("total", "1500");
    EXPECT_EQ(texto("codigo"), "");
    EXPECT_TRUE(w("codigo")->hasFocus());
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());
    EXPECT_EQ(columna("haberes", 4), (std::vector<std::string>{"30,000.00", "0.00", "1,500.00"}));

    // Por el nombre: la fila ya está, así que queda para Modificar con lo guardado.
    teclear("concepto", "transp");
    EXPECT_EQ(texto("codigo"), "58");
    EXPECT_EQ(texto("total"), "1,500.00");
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());
    EXPECT_TRUE(w<QPushButton>("Modificar")->isEnabled());
    // F6 guarda el total cambiado.
    w("total")->setText("1400,5");  // la coma del liquidador es la decimal
    tecla(Qt::Key_F6);
    EXPECT_EQ(columna("haberes", 4).back(), "1,400.50");
    // Lo que no es número no se guarda: el aviso nombra el campo y el foco vuelve a él.
    teclear("codigo", "58");
    w("total")->setText("abc");
    tecla(Qt::Key_F6);
    EXPECT_TRUE(dialogo.ultimoMensaje().starts_with("El campo Total debe tener un número"))
        << dialogo.ultimoMensaje();
    EXPECT_TRUE(w("total")->hasFocus());
    EXPECT_EQ(columna("haberes", 4).back(), "1,400.50");
    w("total")->setText("1,400.00");  // lo mostrado con la forma de la grilla se lee igual
    tecla(Qt::Key_F6);
    EXPECT_EQ(columna("haberes", 4).back(), "1,400.00");
    EXPECT_EQ(texto("codigo"), "");

    pulsar("descuentosDeUnaPersona");
    EXPECT_EQ(columna("descuentos", 0), (std::vector<std::string>{"701", "702", "703", "705"}));
    // TRANSPORTE no es gravado: 30000 x 15%, 4.5% y 0.10%; sin IRPF bajo 7 BPC.
    EXPECT_EQ(texto("totalhab"), "31,400.00");
    EXPECT_EQ(texto("totaldes"), "5,880.00");
    EXPECT_EQ(texto("liquidoneto"), "25,520.00");
    EXPECT_EQ(texto("liquidoacobrar"), "25,520.00");
    // Las mismas cifras que el motor, leídas por su cuenta.
    EXPECT_EQ(texto("totalhab"), pesos(sumaTipo("PEREZ, JUAN", "Hab")));
    EXPECT_EQ(texto("totaldes"), pesos(sumaTipo("PEREZ, JUAN", "Des")));
    engine::ContextoFormula ctx;
    const auto mp =
        engine::leerMesDeLaPersona(*sesion.base, "ACME", "PEREZ, JUAN", febrero, ctx, dialogo);
    ASSERT_TRUE(mp);
    const auto liquido =
        engine::liquidoNeto(mp->libro().filas(engine::TablaLiquidacion::Habydesc, febrero),
                            engine::opcionesLiquidoForm42());
    EXPECT_EQ(texto("liquidoneto"), pesos(liquido.liquidoneto.aDouble()));
    EXPECT_EQ(texto("montoirpf"), pesos(mp->desglose.montoirpf.aDouble()));
    EXPECT_EQ(texto("montodedu"), pesos(mp->desglose.montonominal.aDouble()));
    // El recuadro del IRPF quedó con la base del mes de la fila IRPF.
    EXPECT_EQ(texto("totalinggravirpf"), "31,400.00");
    EXPECT_EQ(texto("totalirpfmes"), "0.00");

    // Un descuento tecleado que no es legal baja lo que se cobra, no el líquido neto.
    teclear("codigo", "713");
    teclear("cant", "1");
    teclear("total", "1000");
    EXPECT_EQ(texto("totaldes"), "6,880.00");
    EXPECT_EQ(texto("liquidoneto"), "25,520.00");
    EXPECT_EQ(texto("liquidoacobrar"), "24,520.00");

    // Con descuentos no entra un haber: el aviso, nada escrito, la fila limpia.
    teclear("codigo", "57");
    teclear("cant", "1");
    teclear("total", "200");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Ya hay Descuentos ingresados, para Agregar un Haber deberá eliminar todos los "
              "Descuentos o usar el botón Reliq. por retro.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de advertencia");
    EXPECT_EQ(filas("codigo = 57"), 0);
    EXPECT_EQ(texto("codigo"), "");
    EXPECT_TRUE(w("codigo")->hasFocus());
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());

    // Cómo se calculó el SUELDO: la fila en mano, con Alt+C.
    teclear("codigo", "1");
    QTest::keyClick(w("cant"), Qt::Key_C, Qt::AltModifier);
    QTest::qWait(300);  // el botón se suelta al rato, como con el ratón
    EXPECT_EQ(dialogo.mensajes.back().titulo, "¿Cómo se calculó?");
    EXPECT_EQ(dialogo.ultimoMensaje().rfind("SUELDO: ", 0), 0u) << dialogo.ultimoMensaje();
    EXPECT_GT(dialogo.ultimoMensaje().size(), std::string("SUELDO: ").size());
    // La fila tecleada también guarda cómo se llegó a su importe; una grilla la trae.
    elegirFila("descuentos", 4);
    EXPECT_EQ(texto("codigo"), "713");
    pulsar("ComoSeCalculo");
    EXPECT_EQ(dialogo.ultimoMensaje().rfind("TICKETS ALIMENTACION: ", 0), 0u)
        << dialogo.ultimoMensaje();
    EXPECT_NE(dialogo.ultimoMensaje().find("Total tecleado: 1,000.00."), std::string::npos);

    // F7 sobre un descuento elegido: pregunta y lo borra; las cifras lo siguen.
    elegirFila("descuentos", 0);
    EXPECT_TRUE(w<QPushButton>("Eliminar")->isEnabled());
    tecla(Qt::Key_F7);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Concepto|¿Desea continuar?");
    EXPECT_EQ(filas("codigo = 701"), 0);
    EXPECT_EQ(texto("totaldes"), "2,380.00");

    // Borrar los descuentos del mes pregunta con su título; con No quedan.
    dialogo.respuestas = {false};
    pulsar("DescPerm2");
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Desc.Perm.|¿Desea continuar?");
    EXPECT_EQ(filas("tipo = 'Des'"), 4);
    pulsar("DescPerm2");
    EXPECT_EQ(filas("tipo = 'Des'"), 0);
    EXPECT_TRUE(columna("descuentos", 0).empty());
    EXPECT_EQ(texto("totaldes"), "0.00");
}

TEST_F(PantallaHaberes, LicenciaConSusPreguntasYElPeriodo) {
    persona("GOMEZ, ANA", "1", "30000", "2019-01-01");
    abrirMes("0226", "GOMEZ, ANA");
    pulsar("haberesDelMes");
    const std::string menosDe10 =
        "La cantidad de días de licencia por período no puede ser menor que 10|¿Desea "
        "continuar?";
    const std::string periodo =
        "Período de Licencia (largo de fechas + el guión = 17)|Modifique las fechas desde y "
        "hasta.";

    // Cinco días: la pregunta por menos de 10; con No no se calcula nada.
    teclear("codigo", "30");
    dialogo.respuestas = {false};
    teclear("cant", "5");
    EXPECT_EQ(dialogo.preguntas, std::vector<std::string>{menosDe10});
    EXPECT_TRUE(w("cant")->hasFocus());
    EXPECT_EQ(filas("codigo = 30"), 0);

    // Con Sí pide el período (el propuesto) y la fila se guarda con el Enter del total.
    dialogo.preguntas.clear();
    teclear("cant", "5");
    EXPECT_EQ(dialogo.preguntas, (std::vector<std::string>{menosDe10, periodo}));
    EXPECT_EQ(texto("total"), "5,000.00");  // 30000 / 30 x 5
    teclear("total", "5000");
    EXPECT_EQ(filas("codigo = 30 AND cant = 5"), 1);
    EXPECT_EQ(sumaTipo("GOMEZ, ANA", "Hab"), 30000);  // SUELDO 25000 + LICENCIA 5000

    // Cero días: el aviso.
    teclear("codigo", "30");
    teclear("cant", "0");
    EXPECT_EQ(dialogo.ultimoMensaje(), "La cantidad de días de licencia no puede ser cero.");
}

TEST_F(PantallaHaberes, DiciembreMuestraElCierreDelAnio) {
    persona("ROSSI, ANA", "1", "120000", "2020-01-01");
    // Once meses del año ya liquidados con el mismo sueldo.
    for (int m = 1; m <= 11; ++m)
        sql("INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, cant, "
            "total, ipd) VALUES ('ACME', 'ROSSI, ANA', ?, 1, 'SUELDO', 'Hab', 'Si', 1, 120000, "
            "'Si')",
            {common::Mes{2025, m}.primerDia().iso()});
    abrir("Form42");
    teclear("empresa", "ACME");
    teclear("mes", "1225");  // Sí a la pregunta del mes
    teclear("nombre", "ROSSI, ANA");
    pulsar("haberesDelMes");
    auto* detalle = pantalla->findChild<QWidget*>("detalleAnio");
    ASSERT_NE(detalle, nullptr);
    EXPECT_FALSE(detalle->isVisible());

    // La fila IRPF tecleada en diciembre: el detalle del año con lo de la fila.
    teclear("codigo", "705");
    teclear("cant", "");
    EXPECT_TRUE(detalle->isVisible());
    EXPECT_EQ(texto("inggrav"), "1,440,000.00");  // doce meses de 120000
    EXPECT_EQ(texto("totalirpfmes"),
              pesos(std::stod(*ventana::numeroTecleado(w("total")->text().toStdString()))));
    EXPECT_NE(texto("totalirpfmes"), "0.00");  // el año pasa la franja sin impuesto

    // Otra persona limpia el recuadro; F2 relee lo que otra PC escribió.
    teclear("nombre", "ROSSI, ANA");
    EXPECT_FALSE(detalle->isVisible());
    EXPECT_EQ(texto("totalirpfmes"), "");
    sql("INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total) "
        "VALUES ('ACME', 'ROSSI, ANA', '2025-12-01', 58, 'TRANSPORTE', 'Hab', 1, 700)");
    tecla(Qt::Key_F2);
    EXPECT_EQ(columna("haberes", 1).back(), "TRANSPORTE");
    EXPECT_EQ(texto("totalhab"), "120,700.00");

    // Desc. Perm.: el recuadro con el cierre del año de la fila IRPF que escribió.
    pulsar("descuentosDeUnaPersona");
    EXPECT_TRUE(detalle->isVisible());
    const auto conceptos = columna("descuentos", 1);
    const auto it = std::find_if(conceptos.begin(), conceptos.end(),
                                 [](const auto& c) { return c.rfind("IRPF", 0) == 0; });
    ASSERT_NE(it, conceptos.end());
    EXPECT_EQ(texto("totalirpfmes").toStdString(),
              columna("descuentos", 4).at(it - conceptos.begin()));
    EXPECT_NE(texto("totalirpfmes"), "0.00");
}

TEST_F(PantallaHaberes, ElMesQueNoEsElAnteriorSePregunta) {
    persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
    persona("NUEVO, LUIS", "2", "20000", "2026-01-10");
    abrir("Form42");
    teclear("empresa", "ACME");
    EXPECT_TRUE(w("mes")->hasFocus());  // Enter pasa de la empresa al mes

    // Forma equivocada: el aviso y nada más.
    teclear("mes", "1326");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Debe completar los campos Empresa, Nombre del Personal y la FMesCargo debe tener "
              "el formato: MM/aa.");
    EXPECT_TRUE(dialogo.preguntas.empty());

    // Diciembre no es el anterior: con No el mes se borra y el foco se queda.
    dialogo.respuestas = {false};
    teclear("mes", "1225");
    EXPECT_EQ(dialogo.preguntas.back(),
              "La fecha corresponde a la liquidación de DICIEMBRE/25|¿Desea continuar?");
    EXPECT_EQ(texto("mes"), "");
    EXPECT_TRUE(w("mes")->hasFocus());

    // Con Sí la lista de personas es la de diciembre: el que entró en enero no está.
    teclear("mes", "1225");
    auto* nombres = w<QComboBox>("nombre");
    EXPECT_GE(nombres->findText("PEREZ, JUAN"), 1);
    EXPECT_EQ(nombres->findText("NUEVO, LUIS"), -1);
    EXPECT_TRUE(nombres->hasFocus());
    dialogo.preguntas.clear();
    teclear("mes", "0226");
    EXPECT_TRUE(dialogo.preguntas.empty());
    EXPECT_GE(nombres->findText("NUEVO, LUIS"), 1);
}

TEST_F(PantallaHaberes, AnteriorYSiguienteSoloEntreActivos) {
    persona("UNO, A", "1", "1000", "2020-01-01");
    persona("DOS, B", "2", "1000", "2020-01-01", "2025-06-30");  // egresó
    persona("TRES, C", "3", "1000", "2020-01-01");
    sql("UPDATE personal SET impaclab = '2', fechaing2 = '2026-05-01' WHERE nrofun = '3'");
    persona("CINCO, E", "5", "1000", "2020-01-01", "", "[02/26] Cobra por banco desde este mes.");
    persona("SEIS, F", "6", "1000", "2020-01-01", "", "[01/26] Ya no cobra horas extras.");
    abrirMes("0226", "UNO, A");
    EXPECT_EQ(texto("nrofun"), "1");
    dialogo.mensajes.clear();

    // El 2 egresó, el 3 trabaja en su segunda actividad desde mayo, el 4 no existe.
    pulsar("Prox");
    EXPECT_EQ(w<QComboBox>("nombre")->currentText(), "CINCO, E");
    EXPECT_EQ(texto("nrofun"), "5");
    ASSERT_EQ(dialogo.mensajes.size(), 1u);  // sus observaciones son de este mes
    EXPECT_EQ(dialogo.ultimoMensaje(), "Cobra por banco desde este mes.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de información");
    pulsar("Prox");
    EXPECT_EQ(texto("nrofun"), "6");
    EXPECT_EQ(dialogo.mensajes.size(), 1u);  // las del 6 son de enero
    pulsar("Prox");
    EXPECT_EQ(texto("nrofun"), "6");  // no hay más
    pulsar("Ant");
    pulsar("Ant");
    EXPECT_EQ(w<QComboBox>("nombre")->currentText(), "UNO, A");
    // La lista del mes no trae a quien egresó.
    EXPECT_EQ(w<QComboBox>("nombre")->findText("DOS, B"), -1);

    // Por número: uno que no existe.
    teclear("nrofun", "4");
    EXPECT_EQ(w<QComboBox>("nombre")->currentText(), "NO EXISTE");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la "
              "ventana Personal.");
    teclear("nrofun", "3");
    EXPECT_EQ(w<QComboBox>("nombre")->currentText(), "TRES, C");
    w("nrofun")->clear();
    w<QComboBox>("empresa")->setCurrentText("");
    teclear("nrofun", "3");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar los campos Empresa y Nro Fun.");
}

TEST_F(PantallaHaberes, TodaLaEmpresaConSuAvanceYDetener) {
    persona("A, UNO", "1", "10000", "2020-01-01");
    persona("B, DOS", "2", "20000", "2020-01-01");
    persona("C, TRES", "3", "30000", "2020-01-01");
    abrir("Form42");
    teclear("empresa", "ACME");
    // Sólo la empresa: con el mes escrito no corre.
    w("mes")->setText("02/26");
    pulsar("ActHabPermxEmpresa");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar solamente el campo Empresa.");
    EXPECT_EQ(filas("1 = 1"), 0);
    w("mes")->clear();

    // Detener durante la primera persona: ella queda, las demás no.
    auto* avance = w<QProgressBar>("avance");
    auto* detener = w<QPushButton>("Detener");
    EXPECT_FALSE(detener->isEnabled());
    std::vector<int> vistos;
    auto c = QObject::connect(avance, &QProgressBar::valueChanged, [&](int v) {
        vistos.push_back(v);
        EXPECT_TRUE(detener->isEnabled());
        EXPECT_FALSE(w<QPushButton>("descuentosDeUnaPersona")->isEnabled());  // lo demás, bloqueado
        if (v == 1) detener->click();
    });
    dialogo.mensajes.clear();
    pulsar("ActHabPermxEmpresa");
    EXPECT_EQ(vistos, std::vector<int>{1});
    EXPECT_EQ(avance->maximum(), 3);
    EXPECT_EQ(filas("nombre = 'A, UNO' AND codigo = 1"), 1);
    EXPECT_EQ(filas("nombre <> 'A, UNO'"), 0);
    EXPECT_TRUE(dialogo.mensajes.empty());  // detenida: no dice finalizada
    EXPECT_TRUE(w<QPushButton>("descuentosDeUnaPersona")->isEnabled());
    EXPECT_FALSE(detener->isEnabled());
    // Terminada la corrida, la línea de avance queda limpia.
    EXPECT_FALSE(avance->isTextVisible());
    EXPECT_EQ(w<QLabel>("personaEnCurso")->text(), "");
    QObject::disconnect(c);

    // De nuevo, hasta el final: todas con su SUELDO.
    vistos.clear();
    c = QObject::connect(avance, &QProgressBar::valueChanged, [&](int v) { vistos.push_back(v); });
    // Alt+E es "Act. Hab. Perm. x &Empresa"; el botón se suelta al rato, como con el ratón.
    QTest::keyClick(w("codigo"), Qt::Key_E, Qt::AltModifier);
    QTest::qWait(300);
    EXPECT_EQ(vistos, (std::vector<int>{0, 1, 2, 3}));  // la barra vuelve a empezar
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Actualización finalizada.\n3 personas liquidadas del mes 02/26.");
    EXPECT_EQ(filas("codigo = 1"), 3);

    // Los descuentos de toda la empresa, con su aviso al final.
    dialogo.mensajes.clear();
    pulsar("descuentosDeLaEmpresa");
    EXPECT_EQ(filas("codigo = 701"), 3);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Actualización finalizada.\n3 personas liquidadas del mes 02/26.");
    QObject::disconnect(c);
}

TEST_F(PantallaHaberes, UnFalloDiceEnQueProcedimientoSeCorto) {
    persona("A, UNO", "1", "10000", "2020-01-01");
    persona("B, DOS", "2", "0", "2020-01-01");
    // Un haber permanente que divide por el sueldo: con sueldo 0 falla.
    sql("INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
        "permanente, gravado, aguinaldo, lic, ipd) VALUES (99, 'PRIMA', 'G', '1000/[SUELDO]', "
        "'Hab', 'I', 'Si', 'Si', 'No', 'No', 'Si')");
    abrir("Form42");
    teclear("empresa", "ACME");
    pulsar("ActHabPermxEmpresa");
    ASSERT_FALSE(dialogo.mensajes.empty());
    EXPECT_EQ(dialogo.ultimoMensaje().rfind("Error inesperado 11 en ActHamPermxEmpresa_Click del "
                                            "Form42 \n",
                                            0),
              0u)
        << dialogo.ultimoMensaje();
    EXPECT_EQ(filas("nombre = 'A, UNO'"), 3);  // la primera persona quedó entera
    EXPECT_EQ(filas("nombre = 'B, DOS'"), 0);
    EXPECT_TRUE(w<QPushButton>("haberesDelMes")->isEnabled());  // la pantalla vuelve a estar a mano

    teclear("mes", "0226");
    teclear("nombre", "B, DOS");
    pulsar("haberesDelMes");
    EXPECT_EQ(dialogo.ultimoMensaje().rfind("Error inesperado 11 en HabPerm_Click del Form42", 0),
              0u)
        << dialogo.ultimoMensaje();
}

TEST_F(PantallaHaberes, ControlHLaAbreYF10AbreLosConceptos) {
    ventana::VentanaPrincipal principal(sesion);
    principal.show();
    QApplication::setActiveWindow(&principal);
    auto* barra = principal.findChild<QAction*>("tecla_HaberesyDescuentos");
    ASSERT_NE(barra, nullptr);
    EXPECT_EQ(barra->text(), "Hab.yDesc.");
    EXPECT_TRUE(barra->isEnabled());
    QTest::keyClick(&principal, Qt::Key_H, Qt::ControlModifier);
    auto* form42 = principal.findChild<QWidget*>("Form42");
    ASSERT_NE(form42, nullptr);
    EXPECT_EQ(form42->windowTitle(), "Haberes y Descuentos");
    QApplication::setActiveWindow(form42);
    QTest::keyClick(form42->findChild<QLineEdit*>("codigo"), Qt::Key_F10);
    EXPECT_NE(form42->findChild<QWidget*>("Form4"), nullptr);
    // F8 y F9 esperan a los recibos; F12 valida.
    for (const char* b : {"Imp.", "Copiar"})
        EXPECT_FALSE(form42->findChild<QPushButton*>(b)->isEnabled()) << b;
    EXPECT_TRUE(form42->findChild<QPushButton*>("Validar")->isEnabled());
}

TEST(TextosHaberes, ObservacionesPorMesYTituloDelMes) {
    using pantallas::observacionDelMes;
    // Sin mes entre corchetes se muestran siempre; con mes, sólo en ese mes.
    EXPECT_EQ(observacionDelMes("  Embargo vigente ", "02/26"), "Embargo vigente");
    EXPECT_EQ(observacionDelMes("Cobra por banco [02/26]", "02/26"), "Cobra por banco");
    EXPECT_EQ(observacionDelMes("[03/26] Cobra por banco", "02/26"), std::nullopt);
    // Sólo el mes, o nada: no hay cuadro.
    EXPECT_EQ(observacionDelMes("[02/26]", "02/26"), std::nullopt);
    EXPECT_EQ(observacionDelMes("", "02/26"), std::nullopt);
    EXPECT_EQ(pantallas::tituloMesLiquidado({2026, 9}),
              "La fecha corresponde a la liquidación de SETIEMBRE/26");
}

}  // namespace
