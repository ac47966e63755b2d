// The squares that a colour occupies, as a transient 64-bit mask (bit = square) for one pass over its pieces.
// The board itself stays an array: the mask is read off it in a handful of vector comparisons.
#pragma once

#include <bit>
#include <cstdint>

#if defined(__AVX512F__) || defined(__AVX2__)
#include <immintrin.h>
#endif

#include "board/Color.h"

template <int C>
inline std::uint64_t MascaraPropias() {
    const int*    casillas = TableroGlobal.Casillas;
    std::uint64_t mascara  = 0;
#if defined(__AVX512F__)
    for (unsigned i = 0; i < 64; i += 16) {
        const __m512i   grupo  = _mm512_load_si512(casillas + i);
        const __m512i   vacias = _mm512_set1_epi32(VACIO);
        const __mmask16 propias =
            C == BLANCO ? _mm512_cmplt_epi32_mask(grupo, vacias) : _mm512_cmpgt_epi32_mask(grupo, vacias);
        mascara |= std::uint64_t{propias} << i;
    }
#elif defined(__AVX2__)
    for (unsigned i = 0; i < 64; i += 8) {
        const __m256i grupo   = _mm256_load_si256(reinterpret_cast<const __m256i*>(casillas + i));
        const __m256i vacias  = _mm256_set1_epi32(VACIO);
        const __m256i propias = C == BLANCO ? _mm256_cmpgt_epi32(vacias, grupo) : _mm256_cmpgt_epi32(grupo, vacias);
        const auto    bits    = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(propias)));
        mascara |= std::uint64_t{bits} << i;
    }
#else
    for (unsigned i = 0; i < 64; ++i) mascara |= std::uint64_t{EsPropia<C>(casillas[i])} << i;
#endif
    return mascara;
}

// Takes the next square off the mask in the colour's generation order: White from h1 to a8, Black from a8 to h1.
template <int C>
inline int TomarCasilla(std::uint64_t& mascara) {
    const int casilla = C == BLANCO ? 63 - std::countl_zero(mascara) : std::countr_zero(mascara);
    mascara ^= std::uint64_t{1} << casilla;
    return casilla;
}
