// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Options/SchedulerRequest.h"

#include <cups/cups.h>
#include <sys/socket.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string_view>
#include <utility>

#include "Platform/Process.h"

namespace zarvo {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr const char* kLoopback[] = {"localhost", "127.0.0.1", "::1", "[::1]"};

struct HttpCloser {
  void operator()(http_t* http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, HttpCloser>;

/// Ends a connection at a point in time, whatever it is doing: the library's own limits start anew
/// with every byte that comes. A timer's signal shuts the socket down, and reading sees its end.
class Deadline {
 public:
  Deadline(int socket, std::chrono::milliseconds left) {
    struct sigaction action {};
    action.sa_sigaction = [](int, siginfo_t* about, void*) {
      shutdown(about->si_value.sival_int, SHUT_RDWR);
    };
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    sigaction(SIGALRM, &action, &old_action_);
    sigset_t alarm;
    sigemptyset(&alarm);
    sigaddset(&alarm, SIGALRM);
    sigprocmask(SIG_UNBLOCK, &alarm, &old_mask_);
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    event.sigev_value.sival_int = socket;
    itimerspec when{};
    when.it_value.tv_sec = static_cast<std::time_t>(left.count() / 1000);
    when.it_value.tv_nsec = static_cast<long>(left.count() % 1000) * 1000000;
    set_ = timer_create(CLOCK_MONOTONIC, &event, &timer_) == 0;
    running_ = set_ && timer_settime(timer_, 0, &when, nullptr) == 0;
  }
  Deadline(const Deadline&) = delete;
  Deadline& operator=(const Deadline&) = delete;
  ~Deadline() {
    if (set_) timer_delete(timer_);
    sigaction(SIGALRM, &old_action_, nullptr);
    sigprocmask(SIG_SETMASK, &old_mask_, nullptr);
  }

  bool running() const { return running_; }

 private:
  struct sigaction old_action_ {};
  sigset_t old_mask_{};
  timer_t timer_{};
  bool set_ = false;
  bool running_ = false;
};

int PortOfScheduler() {
  const char* text = std::getenv("IPP_PORT");
  const std::string_view digits = text != nullptr ? text : "";
  int port = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
  constexpr int kHighestPort = 65535;
  if (error != std::errc() || end != digits.data() + digits.size() || port > kHighestPort) return 0;
  return port;
}

/// The job's number when it is one; it goes into the request.
int JobNumber(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

bool IsLocal(const std::string& server) {
  if (server.starts_with("/")) return true;
  for (const char* name : kLoopback) {
    if (server == name) return true;
  }
  return false;
}

ipp_t* NewRequest(int job, const char* user) {
  ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  ippSetVersion(request, 2, 0);  // answers of older versions leave collections out
  const std::string uri = "ipp://localhost/jobs/" + std::to_string(job);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, user);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
  return request;
}

/// Nobody is there to type one.
const char* NoPassword(const char*, http_t*, const char*, const char*, void*) { return nullptr; }

/// What is left of an answer in memory.
struct Body {
  std::string bytes;
  std::size_t position = 0;
};

ssize_t ReadBody(void* context, ipp_uchar_t* buffer, std::size_t size) {
  Body& body = *static_cast<Body*>(context);
  const std::size_t count = std::min(size, body.bytes.size() - body.position);
  std::memcpy(buffer, body.bytes.data() + body.position, count);
  body.position += count;
  return static_cast<ssize_t>(count);
}

/// The answer to a request that was sent; its bytes are read first, because the library takes ten
/// times as long for values that it reads off the connection one by one.
IppMessage ReadAnswer(http_t* http) {
  constexpr std::size_t kLongestAnswer = 16 << 20;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  if (status != HTTP_STATUS_OK) return nullptr;
  Body body;
  char buffer[1 << 16];
  ssize_t count = 0;
  while ((count = httpRead2(http, buffer, sizeof buffer)) > 0 && body.bytes.size() < kLongestAnswer)
    body.bytes.append(buffer, static_cast<std::size_t>(count));
  IppMessage answer(ippNew());
  const ipp_state_t state = ippReadIO(&body, &ReadBody, 1, nullptr, answer.get());
  return state == IPP_STATE_DATA ? std::move(answer) : nullptr;
}

Failure Exchange(http_t* http, int job, const char* user, std::chrono::milliseconds limit,
                 IppMessage* attributes) {
  cupsSetPasswordCB2(&NoPassword, nullptr);
  const IppMessage request(NewRequest(job, user));
  const http_status_t sent = cupsSendRequest(http, request.get(), "/", ippLength(request.get()));
  if (sent != HTTP_STATUS_CONTINUE && sent != HTTP_STATUS_OK) return "it does not take the request";
  IppMessage answer = ReadAnswer(http);
  if (!answer) return "no whole answer in " + std::to_string(limit.count()) + " ms";
  if (ippGetStatusCode(answer.get()) > IPP_STATUS_OK_CONFLICTING)
    return std::string("it answers ") + ippErrorString(ippGetStatusCode(answer.get()));
  ipp_attribute_t* told = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
  if (told == nullptr || ippGetInteger(told, 0) != job) return "it answers about another job";
  *attributes = std::move(answer);
  return "";
}

}  // namespace

bool UnderScheduler() {
  return std::getenv("CUPS_SERVER") != nullptr && std::getenv("CUPS_REQUESTROOT") != nullptr;
}

Failure RequestJobAttributes(const char* job_id, const char* user, IppMessage* attributes) {
  const auto limit = TimeLimit(kRequestVariable, std::chrono::milliseconds(kRequestMilliseconds));
  const auto end = SteadyClock::now() + limit;
  const char* named = std::getenv("CUPS_SERVER");
  const std::string server = named != nullptr ? named : "";
  const int port = PortOfScheduler();
  const int job = JobNumber(job_id);
  if (job < 1) return "the job has no number";
  if (!IsLocal(server) || (port == 0 && !server.starts_with("/")))
    return "CUPS_SERVER and IPP_PORT name no scheduler of this machine";
  const Connection http(httpConnect2(server.c_str(), port, nullptr, AF_UNSPEC,
                                     HTTP_ENCRYPTION_IF_REQUESTED, 1,
                                     static_cast<int>(limit.count()), nullptr));
  if (http == nullptr || httpAddrLocalhost(httpGetAddress(http.get())) == 0)
    return "it cannot be reached";
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - SteadyClock::now());
  const Deadline deadline(httpGetFd(http.get()), std::max(left, std::chrono::milliseconds(1)));
  if (!deadline.running()) return "there is no timer";
  return Exchange(http.get(), job, user, limit, attributes);
}

}  // namespace zarvo
