#include "tapd/main/GuardLink.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <new>

namespace tarvin::tapd {

std::optional<GuardLink::Pair> GuardLink::make()
{
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return std::nullopt;
    FileDescriptor first(ends[0]);
    FileDescriptor second(ends[1]);
    void* const memory = ::mmap(nullptr, sizeof(GuardPage), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return std::nullopt;
    GuardPage& page = *new (memory) GuardPage{};
    return Pair{.ofDaemon = {std::move(first), page}, .ofGuard = {std::move(second), page}};
}

void GuardLink::tell(const GuardNotice& notice, int descriptor) const
{
    GuardNotice content = notice;
    iovec part{.iov_base = &content, .iov_len = sizeof content};
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(sizeof(int))> control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (descriptor >= 0) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof descriptor);
        std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    }
    // Without its guard the daemon ends anyway.
    static_cast<void>(::sendmsg(m_descriptor.get(), &message, MSG_NOSIGNAL));
}

std::optional<ReceivedNotice> GuardLink::receive() const
{
    ReceivedNotice received;
    iovec part{.iov_base = &received.notice, .iov_len = sizeof received.notice};
    alignas(cmsghdr) std::array<std::byte, CMSG_SPACE(sizeof(int))> control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (::recvmsg(m_descriptor.get(), &message, MSG_DONTWAIT | MSG_CMSG_CLOEXEC)
        != static_cast<ssize_t>(sizeof received.notice))
        return std::nullopt;
    if (const cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header != nullptr && header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_RIGHTS) {
        int descriptor = -1;
        std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
        received.descriptor = FileDescriptor(descriptor);
    }
    return received;
}

} // namespace tarvin::tapd
