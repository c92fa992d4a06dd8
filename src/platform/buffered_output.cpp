#include "platform/buffered_output.h"

#include <utility>

#include "kwutils/error.h"
#include "platform/write_buffer.h"

namespace kw::platform {
namespace {

class BufferedOutput : public OutputFile {
 public:
  BufferedOutput(NativeFile file, FileName name) : buffer_(std::move(file), std::move(name)) {}

  ~BufferedOutput() override {
    try {
      close();
    } catch (const Error&) {
      // Who wants to know calls close().
    }
  }

  void write(std::string_view bytes) override { buffer_.write(bytes); }

  void close() override {
    if (buffer_.file()) buffer_.close();
  }

 private:
  WriteBuffer buffer_;
};

}  // namespace

std::unique_ptr<OutputFile> buffered_output(NativeFile file, FileName name) {
  return std::make_unique<BufferedOutput>(std::move(file), std::move(name));
}

}  // namespace kw::platform
