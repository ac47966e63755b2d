// A probing library that answers anything. Four lines: what it says when it starts, the folder of the tables, the value
// of the other options, a FEN; then the answers, which are also the head of a table file. The engine prints what the
// library says as it is; a blank before it tells it from the engine's own lines.
#include <fstream>

#include "fuzz/Entorno.h"
#include "tablebases/DobleGaviota.h"

extern "C" DobleGaviota doble;

static Bytes Respuestas;

static void Responder() {
    const int byte    = Respuestas.Sacar();
    doble.Responde    = byte < 128 ? 1 : byte - 129;
    doble.Resultado   = static_cast<unsigned>(byte) % 8;
    doble.Plies       = static_cast<unsigned>(Respuestas.Sacar()) << (byte / 8 % 32);
    doble.Registro[0] = '\0';
}

void Ejecutar(Bytes bytes) {
    const std::string mensaje = ' ' + bytes.Linea(), ruta = bytes.Linea(), valor = bytes.Linea();
    const std::string usar    = "setoption name GaviotaTbUse value ";
    const std::string partida = "isready\nposition fen " + bytes.Fen(10) + "\ngo depth 3\n";
    Empezar();
    std::ofstream("kqk.gtb.cp4", std::ios::binary) << bytes.Resto;
    Respuestas           = bytes;
    doble.Mensaje        = mensaje == " " ? nullptr : mensaje.c_str();
    doble.Iniciada       = static_cast<unsigned>(Respuestas.Sacar());
    doble.Disponibilidad = static_cast<unsigned>(Respuestas.Sacar());
    doble.AntesDeSondear = Responder;
    Dialogar("setoption name GaviotaTbPath value " + ruta + "\nsetoption name GaviotaTbCompression value " + valor +
             "\nsetoption name GaviotaTbCache value " + valor + "\n" + usar + "true\n" + partida + usar + "false\n" +
             partida + usar + "true\n" + partida);
}
