# gnuplot -c density.gnuplot DENSITY.csv DATA.csv PICTURE.svg
set terminal svg size 640,400 font "sans-serif,17" background "white"
set output ARG3
set datafile separator comma
set title "Eruptions of the Old Faithful geyser: kernel density by OpenCL"
set xlabel "minutes"
set yrange [0:*]
set ytics 0.1
set xtics 1
set border 3
set tics nomirror
unset key
set style fill solid 0.25
# A mark for every observation under the curve.
plot ARG1 using 1:2 every 8::1 with filledcurves y1=0 lc rgb "#1f5fa8", \
     ARG1 using 1:2 every 8::1 with lines lw 3 lc rgb "#1f5fa8", \
     ARG2 using 1:(0.015) every ::1 with impulses lw 1 lc rgb "#a03030"
