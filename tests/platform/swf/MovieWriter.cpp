#include "tests/platform/swf/MovieWriter.h"

#include <lzma.h>
#include <zlib.h>

#include "platform/swf/Bytes.h"

namespace test_movies {

namespace {

constexpr std::size_t kLead = 8;

std::string Length(std::size_t length) { return swf::ByteWriter().U32(static_cast<std::uint32_t>(length)).Bytes(); }

}  // namespace

std::string Plain(const std::string& tags, const Shape& shape) {
  swf::ByteWriter body;
  constexpr int kBits = 20;
  const auto side = [&body](int pixels) { body.Bits(0, kBits).Bits(static_cast<std::uint32_t>(pixels * 20), kBits); };
  body.Bits(kBits, 5);
  side(shape.width);
  side(shape.height);
  body.U16(static_cast<std::uint32_t>(shape.framesPerSecond << 8)).U16(static_cast<std::uint32_t>(shape.frameCount));
  body.Raw(tags);
  return "FWS" + std::string(1, static_cast<char>(shape.version)) + Length(kLead + body.Bytes().size()) + body.Bytes();
}

std::string WithZlib(const std::string& plain) {
  std::string packed(compressBound(plain.size()), '\0');
  uLongf size = packed.size();
  compress(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(plain.data() + kLead),
           plain.size() - kLead);
  packed.resize(size);
  return "C" + plain.substr(1, kLead - 1) + packed;
}

std::string WithLzma(const std::string& plain) {
  lzma_options_lzma options;
  lzma_lzma_preset(&options, 1);
  const lzma_filter filters[] = {{LZMA_FILTER_LZMA1, &options}, {LZMA_VLI_UNKNOWN, nullptr}};
  std::string properties(5, '\0');
  lzma_properties_encode(filters, reinterpret_cast<std::uint8_t*>(properties.data()));
  std::string packed(plain.size() * 2 + 1024, '\0');
  std::size_t size = 0;
  lzma_raw_buffer_encode(filters, nullptr, reinterpret_cast<const std::uint8_t*>(plain.data() + kLead),
                         plain.size() - kLead, reinterpret_cast<std::uint8_t*>(packed.data()), &size, packed.size());
  packed.resize(size);
  return "Z" + plain.substr(1, kLead - 1) + Length(size) + properties + packed;
}

std::string TextField(int character, std::string_view variable) {
  swf::ByteWriter body;
  body.U16(static_cast<std::uint32_t>(character)).Bits(13, 5).Bits(0, 13).Bits(2000, 13).Bits(40, 13).Bits(600, 13);
  body.U8(0x04 | 0x01).U8(0x20);                             // colour and font; layout
  body.U16(9).U16(480).U8(0xFF).U8(0x80).U8(0x00).U8(0xFF);  // font, height, orange
  body.U8(2).U16(10).U16(20).U16(0).U16(0).Text(variable);   // centred, margins
  return swf::WriteTag(swf::kDefineEditText, body.Bytes());
}

std::string Place(int character, int depth, std::string_view name) {
  swf::ByteWriter body;
  body.U8(name.empty() ? 0x06 : 0x26).U16(static_cast<std::uint32_t>(depth)).U16(static_cast<std::uint32_t>(character));
  body.U8(0);
  if (!name.empty()) body.Text(name);
  return swf::WriteTag(swf::kPlaceObject2, body.Bytes());
}

std::string Sprite(int character, const std::string& tags) {
  swf::ByteWriter body;
  body.U16(static_cast<std::uint32_t>(character)).U16(1).Raw(tags + Show() + End());
  return swf::WriteTag(swf::kDefineSprite, body.Bytes());
}

std::string Export(int character, std::string_view name) {
  return swf::WriteTag(swf::kExportAssets,
                       swf::ByteWriter().U16(1).U16(static_cast<std::uint32_t>(character)).Text(name).Bytes());
}

std::string Script3Attributes() { return swf::WriteTag(swf::kFileAttributes, std::string("\x08\0\0\0", 4)); }

std::string Symbol(int character, std::string_view name) {
  return swf::WriteTag(swf::kSymbolClass,
                       swf::ByteWriter().U16(1).U16(static_cast<std::uint32_t>(character)).Text(name).Bytes());
}

}  // namespace test_movies
