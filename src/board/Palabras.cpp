#include "board/Palabras.h"

#include <cstring>
#include <limits>

// The bytes 0x00, 0x20, 0x80 and 0xA0: those whose value with bit 5 cleared is 0 once bit 7 is left aside.
static bool TerminaPalabra(char letra) {
    return (static_cast<unsigned char>(letra) & 0x5FU) == 0;
}

static bool EsCifra(char letra) {
    return letra >= '0' && letra <= '9';
}

const char* Split_String(const char* texto, char* palabra) {
    std::memset(palabra, 0, PALABRA_MAX);
    while (*texto == ' ') ++texto;
    for (int n = 0; !TerminaPalabra(*texto); ++texto)
        if (n < PALABRA_MAX - 2) palabra[n++] = *texto;
    return texto;
}

int Es_Numero(const char* texto) {
    if (*texto == '\0') return 0;
    while (EsCifra(*texto)) ++texto;
    return *texto == '\0' ? 1 : 0;
}

// Saturates at the largest signed 64-bit value.
static std::uint64_t NumeroDe64Bits(const char* texto) {
    constexpr std::uint64_t TOPE  = std::numeric_limits<std::int64_t>::max();
    std::uint64_t           valor = 0;
    for (; EsCifra(*texto); ++texto) {
        const auto cifra = static_cast<std::uint64_t>(*texto - '0');
        valor            = valor > (TOPE - cifra) / 10 ? TOPE : valor * 10 + cifra;
    }
    return valor;
}

std::int32_t NumeroDe32Bits(const char* texto) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(NumeroDe64Bits(texto)));
}

int NumeroAcotado(const char* texto, int tope) {
    const std::uint64_t valor = NumeroDe64Bits(texto);
    return valor > static_cast<std::uint64_t>(tope) ? tope : static_cast<int>(valor);
}
