#include "frame/ventana/impresion.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include "frame/carpeta.h"
#include "frame/ventana/texto_qt.h"

namespace nomira::ventana {

namespace {

QFont fuenteDe(const DestinoImpresion& d) {
    QFont f(d.fuente.isEmpty() ? "Courier New" : d.fuente, d.tamano > 0 ? d.tamano : 10);
    // Los informes se arman en columnas por cantidad de caracteres: hace falta letra fija.
    f.setStyleHint(QFont::TypeWriter);
    f.setFixedPitch(true);
    return f;
}

void pintar(QPrinter& impresora, const std::vector<std::string>& lineas,
            const DestinoImpresion& d) {
    QPainter p(&impresora);
    p.setFont(fuenteDe(d));
    const QFontMetrics medida(p.font(), &impresora);
    const int alto = medida.lineSpacing();
    const int pagina = impresora.pageLayout().paintRectPixels(impresora.resolution()).height();
    int y = medida.ascent();
    for (const auto& linea : lineas) {
        if (y + medida.descent() > pagina) {
            impresora.newPage();
            y = medida.ascent();
        }
        p.drawText(0, y, aQt(linea));
        y += alto;
    }
}

}  // namespace

DestinoImpresion destinoDe(const master::Configuracion& c, UsoImpresora uso) {
    switch (uso) {
        case UsoImpresora::Recibos:
            return {aQt(c.impresorarecibos), aQt(c.tiporec), aQt(c.tamrec).toInt()};
        case UsoImpresora::Informes:
            return {aQt(c.impresorainformes), aQt(c.tipoinf), aQt(c.taminf).toInt()};
        case UsoImpresora::Otros:
            return {aQt(c.impresoracomanda), aQt(c.tipocom), aQt(c.tamcom).toInt()};
    }
    return {};
}

void escribirPdf(const std::vector<std::string>& lineas, const DestinoImpresion& destino,
                 const std::filesystem::path& ruta) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(aQt(ruta.string()));
    pintar(impresora, lineas, destino);
}

std::optional<std::filesystem::path> imprimirLineas(const std::vector<std::string>& lineas,
                                                    const DestinoImpresion& destino,
                                                    const std::string& documento,
                                                    common::Dialogo& dialogo) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        std::filesystem::create_directories(frame::rutaSoftware());
        const auto ruta = std::filesystem::absolute(frame::rutaSoftware(documento + ".pdf"));
        if (std::filesystem::exists(ruta) &&
            !dialogo.confirmar("Reemplazar archivo",
                               "Ya existe el archivo " + ruta.string() + ". ¿Desea reemplazarlo?",
                               false))
            return std::nullopt;
        escribirPdf(lineas, destino, ruta);
        dialogo.avisar(common::TipoAviso::Informacion, "Archivo guardado.\n" + ruta.string());
        return ruta;
    }
    QPrinter impresora(QPrinter::HighResolution);
    if (!destino.impresora.isEmpty()) impresora.setPrinterName(destino.impresora);
    impresora.setDocName(aQt(documento));
    pintar(impresora, lineas, destino);
    return std::nullopt;
}

void imprimirInforme(store::Conexion& base, const std::vector<std::string>& lineas,
                     const std::string& documento, common::Dialogo& dialogo) {
    imprimirLineas(lineas, destinoDe(master::leerConfiguracion(base), UsoImpresora::Informes),
                   documento, dialogo);
}

}  // namespace nomira::ventana
