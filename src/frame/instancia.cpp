#include "frame/instancia.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace nomira::frame {

BloqueoInstancia::BloqueoInstancia(const std::filesystem::path& archivo) {
    std::filesystem::create_directories(archivo.parent_path());
    fd_ = ::open(archivo.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd_ >= 0 && ::flock(fd_, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd_);
        fd_ = -1;
    }
}

BloqueoInstancia::~BloqueoInstancia() {
    if (fd_ >= 0) ::close(fd_);
}

}  // namespace nomira::frame
