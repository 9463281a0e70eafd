#pragma once

// The channel between the scheduler and its recording task, shared by both programs.
//
// The scheduler listens on a local socket in the user's runtime folder and hands the socket's
// full path to the task as its one argument; the task reads its parameter file from the same
// folder. Every frame is a 16-byte header of four little-endian 32-bit words (kind, message
// number, argument, length of a payload that follows) and the payload. The task's first frame
// is Hello: its process id as the argument and "class\ntitle" as the payload. Posts are
// one-way; a Call waits for the Reply that carries the same number and a 32-bit result.

#include <QByteArray>
#include <QtEndian>
#include <cstdint>
#include <optional>

namespace TaskProtocol {

// Scheduler to task.
constexpr quint32 REC_MSG_START = 1025;
constexpr quint32 REC_MSG_STOP = 1026;
constexpr quint32 REC_MSG_PAUSE_TOGGLE = 1027;
constexpr quint32 WM_CLOSE = 16;
constexpr quint32 WM_QUIT = 18;
// Task to scheduler.
constexpr quint32 REC_MSG_READY = 1044;
constexpr quint32 REC_MSG_STOPPED = 1045;
constexpr quint32 REC_MSG_ERROR = 1046;
// Both ways: the question and its answer.
constexpr quint32 REC_MSG_KEEPALIVE = 1047;
// Task to scheduler, only when the parameter file asks for the silence alarm: the input has
// stayed below the threshold for the set time, and later sound has returned. The argument is
// the peak level in tenths of a dBFS (NoSignalLevel for digital silence), the payload the
// capture source's name.
constexpr quint32 REC_MSG_SILENT = 1048;
constexpr quint32 REC_MSG_SOUND_RETURNED = 1049;
constexpr qint32 NoSignalLevel = -32768;
// Task to scheduler, for an internet stream only. The broadcast is kept as it came: the
// payload is the encoded wave format record of what is written. A gap in the stream ended
// (or the recording ended inside one): the argument is its length in milliseconds, the
// payload its start as ISO 8601 local time.
constexpr quint32 REC_MSG_STREAM_FORMAT = 1056;
constexpr quint32 REC_MSG_STREAM_GAP = 1057;
// Task to scheduler: the named input was not found at the start, so the recording is taken
// from the server's default input; the payload is the name.
constexpr quint32 REC_MSG_INPUT_MISSING = 1058;
// A REC_MSG_ERROR may carry a text payload: what the code alone can't say (the address and
// the reason a stream could not be reached).
// The main window's own system command, handled beside the task's messages.
constexpr quint32 WM_SYSCOMMAND = 274;
constexpr qint32 SC_MINIMIZE = 61472;

constexpr const char* TaskClass = "RecClass";
constexpr const char* TaskTitle = "Nightreel recording task";

enum class Kind : quint32 { Hello = 1, Post = 2, Call = 3, Reply = 4 };

struct Frame {
    Kind kind = Kind::Post;
    quint32 number = 0;
    qint32 argument = 0;
    QByteArray payload;
};

constexpr int HeaderSize = 16;
// Nothing legitimate comes near this; a larger length means the stream is not ours.
constexpr quint32 MaxPayload = 4096;

inline QByteArray Encode(const Frame& frame)
{
    QByteArray bytes(HeaderSize, '\0');
    qToLittleEndian<quint32>(quint32(frame.kind), bytes.data());
    qToLittleEndian<quint32>(frame.number, bytes.data() + 4);
    qToLittleEndian<qint32>(frame.argument, bytes.data() + 8);
    qToLittleEndian<quint32>(quint32(frame.payload.size()), bytes.data() + 12);
    return bytes + frame.payload;
}

inline QByteArray Encode(Kind kind, quint32 number, qint32 argument = 0)
{
    return Encode(Frame{kind, number, argument, {}});
}

// Cuts frames out of a byte stream as it arrives.
class FrameReader {
public:
    enum class Result { Frame, NeedMore, Garbage };

    void Append(const QByteArray& bytes) { m_buffer += bytes; }

    // Garbage leaves in frame the number field of the bad header, for the report.
    Result Next(Frame& frame)
    {
        if (m_buffer.size() < HeaderSize)
            return Result::NeedMore;
        const char* p = m_buffer.constData();
        const quint32 kind = qFromLittleEndian<quint32>(p);
        frame.number = qFromLittleEndian<quint32>(p + 4);
        frame.argument = qFromLittleEndian<qint32>(p + 8);
        const quint32 length = qFromLittleEndian<quint32>(p + 12);
        if (kind < quint32(Kind::Hello) || kind > quint32(Kind::Reply) || length > MaxPayload) {
            m_buffer.clear();
            return Result::Garbage;
        }
        if (quint32(m_buffer.size()) < HeaderSize + length)
            return Result::NeedMore;
        frame.kind = Kind(kind);
        frame.payload = m_buffer.mid(HeaderSize, length);
        m_buffer.remove(0, HeaderSize + length);
        return Result::Frame;
    }

private:
    QByteArray m_buffer;
};

} // namespace TaskProtocol
