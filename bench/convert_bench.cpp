// Times the encoder library (libnightreelenc.so, through its four entry points) against the
// `lame` command line on a 10-minute 44.1 kHz 16-bit stereo source of pink noise and a 1 kHz
// tone in the recording task's layout, at 128 kbit/s and the same quality on both sides
// (`-q 3`, NIGHTREELENC_LAME_QUALITY). The page cache is warmed and one unmeasured run of
// each side made first; then the sides take turns, the first side alternating, and the
// medians are taken. Prints one figure a line:
//
//   ratio_lib_cpu=     CPU time (user + system) of a whole conversion in the library, from
//                      StartEncodeMp3 to FinishEncodeMp3 (getrusage of this process), over
//                      the CPU time of the lame process (its rusage from wait4); median of
//                      each side. Goal: 1.03 or less.
//   max_step_ms=       the longest EncodeNextBuffer call of a conversion, median over the
//                      runs. Goal: 50 or less.
//   frames_identical=  1 when every run's MP3 frames are byte for byte those of the command
//                      line: the library's file less its 128 reserved bytes against lame's
//                      output run with -t (no Xing/Info frame) and --noreplaygain, after
//                      stripping any ID3v2/ID3v1 tag and Xing/Info frame found in it.
//   lib_cpu_s=, cli_cpu_s=, max_step_ms_worst=, finish_ms=, wave_finish_ms=: the figures
//                      behind them; wave_finish_ms is one FinishEncodeMp3 of the same source
//                      as a wave result (which moves the frames once behind the header).
//
//   ratio_queue_wall=  wall time of a whole conversion through the program's conversion
//                      queue (the real TimerConvert driven by an event loop, from its first
//                      tick to the end of the conversion, the row and tag included) over the
//                      wall time of the lame process; medians. Goal: 1.10 or less.
//   max_loop_latency_ms= how much later than due a 10 ms timer fired during that conversion
//                      at worst, median over the runs. Goal: 60 or less.
//   queue_wall_s=, cli_wall_s=, max_loop_latency_ms_worst=: the figures behind them.
//
// Usage: convert-bench [--runs N] [--seconds S]   (defaults 5 and 600)
#include "TaskWaveSource.h"
#include "TestContext.h"
#include "formats/CodecCatalogue.h"
#include "recording/ConversionQueue.h"
#include "recording/EncoderLibrary.h"
#include "recording/RecorderParts.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int Kbps = 128;
constexpr int Rate = 44100;
constexpr int Channels = 2;

double Seconds(const timeval& t)
{
    return double(t.tv_sec) + double(t.tv_usec) / 1e6;
}

double CpuSeconds(const rusage& r)
{
    return Seconds(r.ru_utime) + Seconds(r.ru_stime);
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

struct LibRun {
    bool ok = false;
    double cpu = 0;
    double wall = 0;
    double maxStepMs = 0;
    double finishMs = 0;
};

LibRun RunLibrary(EncoderLibrary& lib, const std::string& source, const std::string& destination,
                  bool asWave)
{
    static const std::string in = TaskWaveSource::PcmRecord(Channels, Rate);
    static const std::string out = TaskWaveSource::Mp3Record(Channels, Rate, Kbps);
    LibRun run;
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    const auto started = SteadyClock::now();
    int code = lib.StartEncodeMp3(source.c_str(), destination.c_str(),
                                  reinterpret_cast<const NightreelWaveFormat*>(in.data()),
                                  reinterpret_cast<const NightreelWaveFormat*>(out.data()), asWave);
    for (int32_t finished = 0; code == 0 && finished != 1;) {
        int32_t percent = 0;
        const auto t0 = SteadyClock::now();
        code = lib.EncodeNextBuffer(&percent, &finished);
        const double ms =
            std::chrono::duration<double, std::milli>(SteadyClock::now() - t0).count();
        run.maxStepMs = std::max(run.maxStepMs, ms);
    }
    if (code == 0) {
        const auto t0 = SteadyClock::now();
        code = lib.FinishEncodeMp3("Nightreel 2000 1.0 ", "6/1/2026 8:00:00 PM ", "Bench ");
        run.finishMs = std::chrono::duration<double, std::milli>(SteadyClock::now() - t0).count();
    }
    getrusage(RUSAGE_SELF, &after);
    if (code != 0) {
        std::fprintf(stderr, "library: code %d\n", code);
        lib.Mp3ConvertErrorCleanUp();
        return run;
    }
    run.cpu = CpuSeconds(after) - CpuSeconds(before);
    run.wall = std::chrono::duration<double>(SteadyClock::now() - started).count();
    run.ok = true;
    return run;
}

// The lame process's CPU time, -1 on failure; its wall time from the spawn to its end.
double RunCli(const std::string& source, const std::string& destination, double* wall = nullptr)
{
    const std::string kbps = std::to_string(Kbps);
    const std::string quality = std::to_string(NIGHTREELENC_LAME_QUALITY);
    std::vector<std::string> args = {"lame", "--quiet",        "-b",   kbps,
                                     "-q",   quality,          "-m",   "j",
                                     "-t",   "--noreplaygain", source, destination};
    std::vector<char*> argv;
    for (std::string& a : args)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    const auto t0 = SteadyClock::now();
    if (posix_spawnp(&pid, "lame", nullptr, nullptr, argv.data(), environ) != 0)
        return -1;
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return -1;
    if (wall)
        *wall = std::chrono::duration<double>(SteadyClock::now() - t0).count();
    return CpuSeconds(usage);
}

struct QueueRun {
    bool ok = false;
    double wall = 0;
    double maxLatencyMs = 0;
};

// One conversion through the program's own queue: the request is queued, the first tick is
// made at once, and the event loop runs TimerConvert until the conversion (row and ID3 tag
// included) is over. A 10 ms probe timer measures how late the loop serves other timers.
// The queue deletes its source at the end, so it gets a hard link of the bench's.
QueueRun RunQueue(TestContext& tc, const QString& source, const QString& destination)
{
    QueueRun run;
    const QString link = source + QStringLiteral(".queue.WAV.TMP");
    QFile::remove(link);
    if (::link(QFile::encodeName(source).constData(), QFile::encodeName(link).constData()) != 0)
        return run;
    AppContext& ctx = *tc.ctx;
    auto request = std::make_shared<clsConvertToMP3Request>();
    request->SourceFile = link;
    request->DestinationFile = destination;
    request->SourceFormat.SetToPcm(Channels, Rate, 16);
    request->DestinationFormat.SetWaveFormatEx(
        WaveFormatRecord::Decode(CodecCatalogue::Mp3Record(Channels, Rate, Kbps)).value());
    request->DestinationFormat.SaveMP3FileExtension = true;
    request->Description = QStringLiteral("Bench");
    ConversionQueue& queue = RecorderParts::Conversion(ctx.recorder);
    queue.Mp3ConvertQueue.append(request);

    QEventLoop loop;
    QObject::connect(&ctx.appStatus, &clsAppStatus::Update, &loop, [&] {
        if (!ctx.appStatus.Converting())
            loop.quit();
    });
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    probe.setInterval(10);
    auto last = SteadyClock::now();
    QObject::connect(&probe, &QTimer::timeout, [&] {
        const auto now = SteadyClock::now();
        const double late = std::chrono::duration<double, std::milli>(now - last).count() - 10;
        run.maxLatencyMs = std::max(run.maxLatencyMs, late);
        last = now;
    });
    const int errorsBefore = tc.CountRows(QStringLiteral("EventLog"));
    const auto t0 = SteadyClock::now();
    probe.start();
    last = t0;
    queue.TimerConvert_Timer();
    if (ctx.appStatus.Converting())
        loop.exec();
    run.wall = std::chrono::duration<double>(SteadyClock::now() - t0).count();
    probe.stop();
    queue.Stop();
    run.ok = tc.CountRows(QStringLiteral("EventLog")) == errorsBefore && QFile::exists(destination);
    if (!run.ok)
        std::fprintf(stderr, "queue: the conversion failed (see the event log)\n");
    return run;
}

size_t FrameLength(const unsigned char* h)
{
    static const int rates1[] = {44100, 48000, 32000};
    static const int rates2[] = {22050, 24000, 16000};
    static const int rates25[] = {11025, 12000, 8000};
    static const int kbps1[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    static const int kbps2[] = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
    const int version = (h[1] >> 3) & 3;
    const int rateIndex = (h[2] >> 2) & 3;
    const int kbpsIndex = h[2] >> 4;
    if (h[0] != 0xff || (h[1] & 0xe0) != 0xe0 || version == 1 || ((h[1] >> 1) & 3) != 1 ||
        rateIndex == 3 || kbpsIndex == 0 || kbpsIndex == 15)
        return 0;
    const int rate = (version == 3 ? rates1 : version == 2 ? rates2 : rates25)[rateIndex];
    const int kbps = (version == 3 ? kbps1 : kbps2)[kbpsIndex];
    return size_t((version == 3 ? 144000 : 72000) * kbps / rate + ((h[2] >> 1) & 1));
}

// The command line's output less what is not frames: ID3v2 at the front, ID3v1 at the end,
// a Xing/Info frame first.
std::string CliFrames(std::string bytes)
{
    if (bytes.size() >= 10 && bytes.compare(0, 3, "ID3") == 0) {
        const auto* p = reinterpret_cast<const unsigned char*>(bytes.data());
        size_t size = size_t(p[6]) << 21 | size_t(p[7]) << 14 | size_t(p[8]) << 7 | p[9];
        size += 10 + ((p[5] & 0x10) ? 10 : 0);
        bytes.erase(0, std::min(size, bytes.size()));
    }
    if (bytes.size() >= 128 && bytes.compare(bytes.size() - 128, 3, "TAG") == 0)
        bytes.resize(bytes.size() - 128);
    if (bytes.size() >= 4) {
        const size_t length = FrameLength(reinterpret_cast<const unsigned char*>(bytes.data()));
        const std::string first = bytes.substr(0, length);
        if (length > 0 &&
            (first.find("Xing") != std::string::npos || first.find("Info") != std::string::npos))
            bytes.erase(0, length);
    }
    return bytes;
}

bool MakeSource(const QString& folder, int seconds, std::string& path)
{
    const QString raw = folder + QStringLiteral("/source.raw");
    const QString length = QString::number(seconds);
    QProcess sox;
    sox.start(QStringLiteral("sox"),
              {"-m", "|sox -n -r 44100 -c 2 -p synth " + length + " pinknoise pinknoise vol 0.25",
               "|sox -n -r 44100 -c 2 -p synth " + length + " sine 1000 vol 0.25", "-b", "16", "-e",
               "signed", "-t", "raw", raw});
    if (!sox.waitForFinished(600000) || sox.exitCode() != 0) {
        std::fprintf(stderr, "sox: %s\n", sox.readAllStandardError().constData());
        return false;
    }
    const std::string pcm = TaskWaveSource::ReadAll(QFile::encodeName(raw).toStdString());
    QFile::remove(raw);
    path = QFile::encodeName(folder + QStringLiteral("/source.WAV.TMP")).toStdString();
    return !pcm.empty() && TaskWaveSource::Write(path, Channels, Rate, pcm);
}

void WarmPageCache(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDONLY);
    if (fd < 0)
        return;
    std::vector<char> block(1 << 20);
    while (read(fd, block.data(), block.size()) > 0) {
    }
    close(fd);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    int runs = 5;
    int seconds = 600;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--runs") == 0)
            runs = std::max(1, std::atoi(argv[i + 1]));
        else if (std::strcmp(argv[i], "--seconds") == 0)
            seconds = std::max(1, std::atoi(argv[i + 1]));
    }

    EncoderLibrary lib;
    lib.SetFolder(QStringLiteral(NIGHTREELENC_DIR));
    if (!lib.Load()) {
        std::fprintf(stderr, "%s\n", qPrintable(lib.ErrorString()));
        return 1;
    }
    QTemporaryDir dir;
    std::string source;
    if (!dir.isValid() || !MakeSource(dir.path(), seconds, source))
        return 1;
    const std::string folder = QFile::encodeName(dir.path()).toStdString();
    const std::string libOut = folder + "/lib.MP3";
    const std::string cliOut = folder + "/cli.mp3";

    WarmPageCache(source);
    if (!RunLibrary(lib, source, libOut, false).ok || RunCli(source, cliOut) < 0)
        return 1;

    // The queue runs in the program's own recorder over a context of the bench's.
    TestContext tc;
    tc.OpenDatabase();
    tc.ctx->options.DefaultRecordingDirectory = dir.path();
    RecorderParts::Conversion(tc.ctx->recorder)
        .Encoder()
        .SetFolder(QStringLiteral(NIGHTREELENC_DIR));
    const QString sourcePath = QFile::decodeName(source.c_str());
    const QString queueOut = dir.path() + QStringLiteral("/queue.MP3");
    if (!RunQueue(tc, sourcePath, queueOut).ok)
        return 1;

    std::vector<double> libWall, libCpu, cliCpu, cliWall, queueWall, maxLatency, maxStep, finishMs;
    bool identical = true;
    for (int i = 0; i < runs; ++i) {
        LibRun l;
        QueueRun q;
        double c = -1;
        double w = 0;
        if (i % 2 == 0) {
            l = RunLibrary(lib, source, libOut, false);
            c = RunCli(source, cliOut, &w);
            q = RunQueue(tc, sourcePath, queueOut);
        } else {
            q = RunQueue(tc, sourcePath, queueOut);
            c = RunCli(source, cliOut, &w);
            l = RunLibrary(lib, source, libOut, false);
        }
        if (!l.ok || !q.ok || c < 0)
            return 1;
        libCpu.push_back(l.cpu);
        libWall.push_back(l.wall);
        cliCpu.push_back(c);
        cliWall.push_back(w);
        queueWall.push_back(q.wall);
        maxLatency.push_back(q.maxLatencyMs);
        maxStep.push_back(l.maxStepMs);
        finishMs.push_back(l.finishMs);

        std::string mine = TaskWaveSource::ReadAll(libOut);
        mine.resize(mine.size() >= NIGHTREELENC_TAG_BYTES ? mine.size() - NIGHTREELENC_TAG_BYTES
                                                          : 0);
        const std::string theirs = CliFrames(TaskWaveSource::ReadAll(cliOut));
        identical = identical && !mine.empty() && mine == theirs;
    }

    const LibRun wave = RunLibrary(lib, source, folder + "/lib.WAV", true);

    std::printf("ratio_lib_cpu=%.3f\n", Median(libCpu) / Median(cliCpu));
    std::printf("ratio_queue_wall=%.3f\n", Median(queueWall) / Median(cliWall));
    std::printf("max_step_ms=%.1f\n", Median(maxStep));
    std::printf("max_loop_latency_ms=%.1f\n", Median(maxLatency));
    std::printf("frames_identical=%d\n", identical ? 1 : 0);
    std::printf("lib_cpu_s=%.3f\n", Median(libCpu));
    std::printf("cli_cpu_s=%.3f\n", Median(cliCpu));
    std::printf("queue_wall_s=%.3f\n", Median(queueWall));
    std::printf("lib_wall_s=%.3f\n", Median(libWall));
    std::printf("cli_wall_s=%.3f\n", Median(cliWall));
    std::printf("max_loop_latency_ms_worst=%.1f\n",
                *std::max_element(maxLatency.begin(), maxLatency.end()));
    std::printf("max_step_ms_worst=%.1f\n", *std::max_element(maxStep.begin(), maxStep.end()));
    std::printf("finish_ms=%.1f\n", Median(finishMs));
    std::printf("wave_finish_ms=%.1f\n", wave.ok ? wave.finishMs : -1.0);
    return 0;
}
