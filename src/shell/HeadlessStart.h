#pragma once

// "--headless": the recorder with no window and no display. It runs the same objects as
// the desktop program (heartbeat, recordings, guard, purge, conversions, side actions),
// writes its log to standard error as well, and is controlled over the session bus. It
// ends on SIGTERM or SIGINT once the recording and conversion in progress are saved.
namespace HeadlessStart {
int Main(int argc, char* argv[]);
} // namespace HeadlessStart
