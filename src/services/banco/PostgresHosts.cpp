#include "services/banco/PostgresHosts.h"

#include <libpq-fe.h>
#include <netdb.h>
#include <sys/socket.h>

#include <array>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>

#include "base/Text.h"

namespace services {
namespace {

using Options = std::vector<std::pair<std::string, std::string>>;
using Parsed = std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)>;

/// The numeric addresses of a name; none when nobody knows it.
std::vector<std::string> LookUp(const std::string& name, int flags) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = flags;
  addrinfo* found = nullptr;
  if (getaddrinfo(name.c_str(), nullptr, &hints, &found) != 0) return {};
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owned(found, freeaddrinfo);
  std::vector<std::string> addresses;
  for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
    std::array<char, NI_MAXHOST> text{};
    if (getnameinfo(each->ai_addr, each->ai_addrlen, text.data(), text.size(), nullptr, 0,
                    NI_NUMERICHOST) == 0) {
      addresses.emplace_back(text.data());
    }
  }
  return addresses;
}

/// What a thread of its own has looked up. The thread may outlive whoever waits for it: the
/// system's look-up cannot be ended.
struct LookedUp {
  std::mutex mutex;
  std::condition_variable changed;
  bool done = false;
  std::vector<std::string> addresses;
};

/// Takes half of the time that is left at most: another host may be known without asking.
std::vector<std::string> LookUpWithin(const std::string& name, const Waiting& whole) {
  auto numeric = LookUp(name, AI_NUMERICHOST);
  if (!numeric.empty()) return numeric;
  const auto now = Waiting::Clock::now();
  Waiting waiting(whole, now + (whole.End() - now) / 2);
  const auto state = std::make_shared<LookedUp>();
  std::thread([state, name] {
    auto addresses = LookUp(name, 0);
    const std::lock_guard lock(state->mutex);
    state->addresses = std::move(addresses);
    state->done = true;
    state->changed.notify_one();
  }).detach();
  std::unique_lock lock(state->mutex);
  while (!state->changed.wait_for(lock, waiting.Nap(), [&] { return state->done; })) {
    if (waiting.IsOver()) return {};
    lock.unlock();
    waiting.Breathe();
    lock.lock();
  }
  return state->addresses;
}

/// The n-th part of a comma list; a list of one part is the same for all.
std::string PartOf(const std::string& list, std::size_t place) {
  const std::vector<std::string> parts = base::Split(list, ',');
  return parts.size() == 1 ? parts.front() : place < parts.size() ? parts[place] : "";
}

/// Everything of a connection but where it leads to.
struct Parts {
  Options rest;
  std::string host, address, port;
  bool hasService = false;
};

Parts PartsOf(const Parsed& parsed) {
  Parts parts;
  for (const PQconninfoOption* each = parsed.get(); each->keyword != nullptr; ++each) {
    if (each->val == nullptr) continue;
    const std::string_view keyword = each->keyword;
    if (keyword == "host") {
      parts.host = each->val;
    } else if (keyword == "hostaddr") {
      parts.address = each->val;
    } else if (keyword == "port") {
      parts.port = each->val;
    } else {
      parts.hasService = parts.hasService || keyword == "service";
      parts.rest.emplace_back(keyword, each->val);
    }
  }
  return parts;
}

/// The host that libpq takes where the text names none.
std::string UsualHost() {
  const Parsed defaults(PQconndefaults(), PQconninfoFree);
  return defaults ? PartsOf(defaults).host : "";
}

PostgresHost Made(const Options& rest, const std::string& host, const std::string& address,
                  const std::string& port) {
  PostgresHost made{rest, host + ' ' + address + ' ' + port};
  if (!host.empty()) made.options.emplace_back("host", host);
  if (!address.empty()) made.options.emplace_back("hostaddr", address);
  if (!port.empty()) made.options.emplace_back("port", port);
  return made;
}

/// A path is a socket of this computer.
bool IsName(const std::string& host) {
  return !host.empty() && host.front() != '/' && host.front() != '@';
}

}  // namespace

std::vector<PostgresHost> HostsOf(const std::string& text, const Waiting& waiting) {
  const Parsed parsed(PQconninfoParse(text.c_str(), nullptr), PQconninfoFree);
  if (!parsed) return {};
  Parts parts = PartsOf(parsed);
  if (parts.host.empty() && parts.address.empty() && !parts.hasService) parts.host = UsualHost();
  const std::size_t count =
      base::Split(parts.address.empty() ? parts.host : parts.address, ',').size();
  std::vector<PostgresHost> hosts;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string host = PartOf(parts.host, i);
    const std::string port = PartOf(parts.port, i);
    const std::string given = PartOf(parts.address, i);
    if (!given.empty() || !IsName(host)) {
      hosts.push_back(Made(parts.rest, host, given, port));
      continue;
    }
    for (const std::string& address : LookUpWithin(host, waiting)) {
      hosts.push_back(Made(parts.rest, host, address, port));
    }
  }
  return hosts;
}

}  // namespace services
