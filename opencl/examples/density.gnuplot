# gnuplot -c density.gnuplot DENSITY.csv DATA.csv PICTURE.png
set terminal pngcairo size 960,540 font "sans,12"
set output ARG3
set datafile separator comma
set title "Eruptions of the Old Faithful geyser: Gaussian kernel density"
set xlabel "duration in minutes"
set ylabel "density"
set yrange [0:*]
set grid
set style fill solid 0.25
# A mark for every observation under the curve.
plot ARG1 using 1:2 skip 1 with filledcurves y1=0 lc rgb "#3070b0" notitle, \
     ARG1 using 1:2 skip 1 with lines lw 2 lc rgb "#3070b0" notitle, \
     ARG2 using 1:(0.01) skip 1 with points pt 2 ps 0.5 lc rgb "#a03030" title "observations"
