// Makes thumbnails of the PNG and JPEG files of a folder, on all cores: each thread takes the next file.
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "picture.hpp"

namespace fs = std::filesystem;

// The largest size of the same shape whose sides are at most `side`, and not above those of the picture.
QvpiSize Fit(QvpiSize size, int side) {
  const double scale = std::min(1.0, static_cast<double>(side) / std::max(size.width, size.height));
  const auto scaled = [scale](int length) { return std::max(1, static_cast<int>(std::lround(length * scale))); };
  return {scaled(size.width), scaled(size.height)};
}

// Each pixel of the thumbnail is the mean of the area that it stands for.
void MakeThumbnail(const fs::path& from, const fs::path& to, int side) {
  const auto photo = Load<3>(from);
  qvp::Image<Qvp8u, 3> thumbnail(Fit(photo.size(), side));
  qvp::resize(photo, thumbnail, {.method = qvp::InterpolationType::super});
  Save(to, thumbnail.view());
}

std::vector<fs::path> PicturesIn(const fs::path& folder) {
  const std::set<std::string> endings{".png", ".jpg", ".jpeg", ".PNG", ".JPG", ".JPEG"};
  std::vector<fs::path> pictures;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.is_regular_file() && endings.contains(entry.path().extension())) pictures.push_back(entry.path());
  }
  return pictures;
}

void ShowProgress(std::size_t done, std::size_t all) {
  constexpr int kWidth = 40;
  const int full = static_cast<int>(kWidth * done / all);
  std::fprintf(stderr, "\r[%.*s%*s] %zu of %zu", full, "########################################", kWidth - full, "",
               done, all);
  if (done == all) std::fputc('\n', stderr);
}

// Returns how many pictures could not be made small; the others are.
std::size_t MakeThumbnails(const std::vector<fs::path>& pictures, const fs::path& folder, int side) {
  std::atomic<std::size_t> next = 0, failed = 0;
  std::size_t done = 0;
  std::mutex progress;
  const auto worker = [&] {
    for (std::size_t i = next++; i < pictures.size(); i = next++) {
      try {
        MakeThumbnail(pictures[i], folder / pictures[i].filename(), side);
      } catch (const std::exception& failure) {
        std::fprintf(stderr, "\n%s\n", failure.what());
        ++failed;
      }
      const std::lock_guard lock(progress);
      ShowProgress(++done, pictures.size());
    }
  };
  std::vector<std::jthread> threads(std::max(1U, std::thread::hardware_concurrency()));
  for (auto& thread : threads) thread = std::jthread(worker);
  threads.clear();  // waits for all of them
  return failed;
}

int main(int count, char** arguments) try {
  const int side = count > 3 ? std::atoi(arguments[3]) : 256;
  if (count < 3 || count > 4 || side < 1) {
    std::fprintf(stderr, "usage: %s FOLDER THUMBNAILS [SIDE]\n", arguments[0]);
    return 2;
  }
  const auto pictures = PicturesIn(arguments[1]);
  fs::create_directories(arguments[2]);
  if (fs::equivalent(arguments[1], arguments[2])) throw std::runtime_error("the pictures would be lost");
  return MakeThumbnails(pictures, arguments[2], side) == 0 ? 0 : 1;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
