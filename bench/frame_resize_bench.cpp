// Resize of frames with subsampled chroma.
#include "bench/frames.h"

namespace {
using namespace bench;

struct Ratio {
  const char* name;
  int to, from;
};
constexpr Ratio kDown{"to 0.6", 3, 5}, kUp{"x1.5", 3, 2};
QvpiSize By(const Ratio& r, QvpiSize size) {
  return {size.width * r.to / r.from / 2 * 2, size.height * r.to / r.from / 2 * 2};
}

using Record = std::shared_ptr<QvpiResizeChromaSpec>;
template <class T>
std::shared_ptr<T> Memory(int bytes) {
  return {static_cast<T*>(std::malloc(bytes)), [](T* p) { std::free(p); }};
}

struct Method {
  const char* name;
  int code;
};
constexpr Method kLinear{"linear", qvpInterpolationLinear}, kSuper{"super", qvpInterpolationSuper},
    kLanczos{"Lanczos 3", qvpInterpolationLanczos};

Record Made420(const Method& m, QvpiSize src, QvpiSize dst, int site) {
  int bytes = 0, init = 0;
  Require(qvpiResize420GetSize(src, dst, qvp8u, m.code, 0, &bytes, &init));
  const Record spec = Memory<QvpiResizeChromaSpec>(bytes);
  Qvp8u buffer[64];
  if (m.code == qvpInterpolationLinear) Require(qvpiResize420LinearInit(src, dst, qvp8u, site, spec.get()));
  if (m.code == qvpInterpolationSuper) Require(qvpiResize420SuperInit(src, dst, qvp8u, site, spec.get()));
  if (m.code == qvpInterpolationLanczos)
    Require(qvpiResize420LanczosInit(src, dst, qvp8u, 3, site, spec.get(), buffer));
  return spec;
}

struct PeerMode {
  const char* name;
  bool isYuv;
  int mode;
  double atLeast;
};

void Row420(const Method& m, const Ratio& r, int planes, QvpiSize size, int site,
            std::initializer_list<PeerMode> peers) {
  const Frame a(size, planes), b(By(r, size), planes);
  const Record spec = Made420(m, size, b.size(), site);
  int bytes = 0;
  Require(qvpiResize420GetBufferSize(spec.get(), b.size(), &bytes));
  const auto buffer = Memory<Qvp8u>(bytes);
  const auto bordered = m.code == qvpInterpolationLinear
                            ? (planes == 2 ? qvpiResize420Linear_8u_P2R : qvpiResize420Linear_8u_P3R)
                            : (planes == 2 ? qvpiResize420Lanczos_8u_P2R : qvpiResize420Lanczos_8u_P3R);
  const auto reduced = planes == 2 ? qvpiResize420Super_8u_P2R : qvpiResize420Super_8u_P3R;
  const auto ours = [=] {
    if (m.code == qvpInterpolationSuper) {
      Require(reduced(a.from, a.step, b.to, b.step, {0, 0}, b.size(), spec.get(), buffer.get()));
    } else {
      Require(bordered(a.from, a.step, b.to, b.step, {0, 0}, b.size(), qvpBorderReplicate, spec.get(), buffer.get()));
    }
  };
  std::vector<Peer> others;
  for (const PeerMode& p : peers) {
    const auto call = [=] {
      p.isYuv ? ScaleByYuv(a, b, static_cast<libyuv::FilterMode>(p.mode)) : ScaleByOpenCv(a, b, p.mode);
    };
    others.push_back({p.name, call, size.width == kHd.width ? p.atLeast : 0});
  }
  const char* const place = site == qvpChromaCentre ? "" : " left";
  Add({Name("resize 4:2:0 " + std::string(m.name) + " " + r.name + place + " 8u P" + std::to_string(planes), size),
       {a.bytes(), b.bytes()},
       ours,
       others});
}

// Packed rows by a peer that has no such call: split, scaled and joined.
struct Planar {
  Image<uint8_t> y, u, v;
  explicit Planar(QvpiSize size)
      : y(size, 1), u({size.width / 2, size.height}, 1), v({size.width / 2, size.height}, 1) {}
};

void Scale(const Image<uint8_t>& a, const Image<uint8_t>& b) {
  libyuv::ScalePlane(a.data(), a.step, a.size.width, a.size.height, b.data(), b.step, b.size.width, b.size.height,
                     libyuv::kFilterBilinear);
}

void Row422(QvpiSize size) {
  const QvpiSize to = By(kDown, size);
  const Image<uint8_t> a(size, 2), b(to, 2);
  const Planar from(size), scaled(to);
  int bytes = 0, init = 0;
  Require(qvpiResize422GetSize(size, to, qvp8u, qvpInterpolationLinear, 0, &bytes, &init));
  const Record spec = Memory<QvpiResizeChromaSpec>(bytes);
  Require(qvpiResize422LinearInit(size, to, qvp8u, qvpChromaLeft, qvpLumaFirst, spec.get()));
  Require(qvpiResize422GetBufferSize(spec.get(), to, &bytes));
  const auto buffer = Memory<Qvp8u>(bytes);
  const auto ours = [=] {
    Require(qvpiResize422Linear_8u_C2R(a.data(), a.step, b.data(), b.step, {0, 0}, to, qvpBorderReplicate, spec.get(),
                                       buffer.get()));
  };
  const auto peer = [=] {
    libyuv::YUY2ToI422(a.data(), a.step, from.y.data(), from.y.step, from.u.data(), from.u.step, from.v.data(),
                       from.v.step, size.width, size.height);
    Scale(from.y, scaled.y);
    Scale(from.u, scaled.u);
    Scale(from.v, scaled.v);
    libyuv::I422ToYUY2(scaled.y.data(), scaled.y.step, scaled.u.data(), scaled.u.step, scaled.v.data(), scaled.v.step,
                       b.data(), b.step, to.width, to.height);
  };
  Add({Name("resize 4:2:2 linear to 0.6 8u C2", size),
       {a.bytes(), b.bytes()},
       ours,
       {{"libyuv by planes", peer, size.width == kHd.width ? 4.0 : 0}}});
}

void Rows() {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    Row420(kLinear, kDown, 2, size, qvpChromaLeft,
           {{"libyuv NV12Scale bilinear", true, libyuv::kFilterBilinear, 4.5},
            {"OpenCV INTER_LINEAR", false, cv::INTER_LINEAR, 3}});
    for (const Ratio& r : {kDown, kUp}) {
      Row420(kLinear, r, 3, size, qvpChromaLeft,
             {{"libyuv I420Scale bilinear", true, libyuv::kFilterBilinear, r.to < r.from ? 4.5 : 3}});
    }
    for (const int site : {qvpChromaCentre, qvpChromaLeft}) {
      Row420(kSuper, kDown, 2, size, site,
             {{"libyuv NV12Scale box", true, libyuv::kFilterBox, 2}, {"OpenCV INTER_AREA", false, cv::INTER_AREA, 10}});
    }
    Row420(kLanczos, kDown, 2, size, qvpChromaLeft, {{"OpenCV INTER_LANCZOS4", false, cv::INTER_LANCZOS4, 13}});
    Row422(size);
  }
}

const bool added = (Rows(), true);

}  // namespace
