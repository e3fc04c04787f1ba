// Distances over the globe, by lanemath's functions of spans: what is nearest to a city and farthest from it, and which
// two cities of all are farthest apart. On a sphere of the earth's mean radius, they are right to half a percent.
//
//     c++ -std=c++20 -O2 great_circles.cpp $(pkg-config --cflags --libs lanemath-loops) -o great-circles
//     ./great-circles data/cities.csv London
#include <lanemath/arrays.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <numeric>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

struct places {
  std::vector<std::string> names;
  std::vector<double> latitudes, longitudes;  // in degrees
};

// Lines of NAME,LATITUDE,LONGITUDE under a title.
places read_places(const std::string& path) {
  std::ifstream file(path);
  std::string line, name;
  std::getline(file, line);
  places all;
  while (std::getline(file, line)) {
    std::istringstream fields(line);
    double latitude, longitude;
    char comma;
    if (!std::getline(fields, name, ',') || !(fields >> latitude >> comma >> longitude) || !(fields >> std::ws).eof() ||
        comma != ',' || !(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 180))
      throw std::runtime_error(path + ": needs lines of a name, a latitude and a longitude");
    all.names.push_back(name);
    all.latitudes.push_back(latitude);
    all.longitudes.push_back(longitude);
  }
  if (all.names.size() < 2) throw std::runtime_error(path + ": needs a title and two places or more");
  return all;
}

// From one place to each, in kilometres: the haversine formula. Sines and cosines of multiples of pi take degrees as
// they are, without rounding them to radians.
std::vector<double> distances(const places& all, std::size_t from) {
  constexpr double diameter = 2 * 6371.0088;
  const std::size_t n = all.names.size();
  std::vector<double> cosines(n), north(n), east(n), result(n);
  for (std::size_t i = 0; i < n; ++i) {
    cosines[i] = all.latitudes[i] / 180;
    north[i] = (all.latitudes[i] - all.latitudes[from]) / 360;
    east[i] = (all.longitudes[i] - all.longitudes[from]) / 360;
  }
  lanemath::cospi(cosines, cosines);
  lanemath::sinpi(north, north);
  lanemath::sinpi(east, east);
  for (std::size_t i = 0; i < n; ++i)
    result[i] = std::min(1.0, north[i] * north[i] + cosines[from] * cosines[i] * east[i] * east[i]);
  lanemath::sqrt(result, result);
  lanemath::asin(result, result);
  for (double& distance : result) distance *= diameter;
  return result;
}

int main(int count, char** arguments) try {
  if (count != 3) {
    std::fprintf(stderr, "usage: %s PLACES.csv CITY\n", arguments[0]);
    return 2;
  }
  const auto all = read_places(arguments[1]);
  const std::size_t n = all.names.size(), shown = std::min<std::size_t>(5, n - 1);
  const auto city = std::size_t(std::ranges::find(all.names, arguments[2]) - all.names.begin());
  if (city == n) throw std::runtime_error(std::string(arguments[1]) + ": has no " + arguments[2]);

  const auto from_city = distances(all, city);
  std::vector<std::size_t> order(n);
  std::iota(order.begin(), order.end(), 0);
  std::ranges::sort(order, {}, [&](std::size_t i) { return from_city[i]; });
  const auto print = [&](std::size_t i) { std::printf("%10.1f km  %s\n", from_city[i], all.names[i].c_str()); };
  std::printf("nearest to %s\n", arguments[2]);
  for (std::size_t i = 1; i <= shown; ++i) print(order[i]);
  std::printf("farthest from it\n");
  for (std::size_t i = n - shown; i < n; ++i) print(order[i]);

  double farthest = 0, sum = 0;
  std::size_t one = 0, other = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const auto from = distances(all, i);
    const auto to = std::size_t(std::ranges::max_element(from) - from.begin());
    if (from[to] > farthest) farthest = from[to], one = i, other = to;
    sum += std::accumulate(from.begin(), from.end(), 0.0);
  }
  std::printf("farthest apart of %zu places\n%10.1f km  %s and %s\n", n, farthest, all.names[one].c_str(),
              all.names[other].c_str());
  std::printf("mean of all pairs\n%10.1f km\n", sum / (double(n) * double(n - 1)));
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
