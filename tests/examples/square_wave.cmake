# Writes a recording whose tones are known: `periods` periods of a square wave, half of each 0x6161 and half 0x2121, so
# that its amplitude is 8224 around a constant. A period of p samples has the harmonics of rate / p: those of odd number m,
# if p / 2 is even, with the amplitude 8224 / (p / 4 sin(pi m / p)).
function(write_square_wave path period periods)
    string(REPEAT "a" ${period} high)
    string(REPEAT "!" ${period} low)
    string(REPEAT "${high}${low}" ${periods} wave)
    file(WRITE ${path} "${wave}")
endfunction()
