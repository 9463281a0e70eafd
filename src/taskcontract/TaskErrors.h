#pragma once

#include <QtGlobal>

// The codes that the recording task reports in 1044, 1046 and the answer to 1025; the
// scheduler turns each into the texts of a log entry. Each names the step that failed.
// 1012 was never given a meaning.
namespace TaskError {
constexpr qint32 ParameterFileLocked = 1000;
constexpr qint32 ParameterFileBad = 1001;
constexpr qint32 WriteFailed = 1002;
constexpr qint32 AudioMetricsFailed = 1003;
constexpr qint32 FormatMemoryFailed = 1004;
constexpr qint32 FormatMemoryLockFailed = 1005;
constexpr qint32 HeaderMemoryFailed = 1006;
constexpr qint32 HeaderMemoryLockFailed = 1007;
constexpr qint32 BufferMemoryFailed = 1008;
constexpr qint32 BufferMemoryLockFailed = 1009;
constexpr qint32 OpenInputFailed = 1010;
constexpr qint32 PrepareHeaderFailed = 1011;
constexpr qint32 CreateFileFailed = 1013;
constexpr qint32 RiffChunkFailed = 1014;
constexpr qint32 FormatChunkFailed = 1015;
constexpr qint32 FormatDataFailed = 1016;
constexpr qint32 FactChunkFailed = 1017;
constexpr qint32 FactDataFailed = 1018;
constexpr qint32 DataChunkFailed = 1019;
constexpr qint32 WaveInfoFailed = 1020;
constexpr qint32 StartFailed = 1021;
constexpr qint32 SoftwareTextFailed = 1022;
constexpr qint32 SubjectNameTextFailed = 1023;
constexpr qint32 AddBufferFailed = 1024;
constexpr qint32 StopFailed = 1025;
constexpr qint32 UnprepareHeader1Failed = 1026;
constexpr qint32 UnprepareHeader2Failed = 1027;
constexpr qint32 CloseInputFailed = 1028;
constexpr qint32 CloseFileFailed = 1029;
constexpr qint32 ListChunkFailed = 1030;
constexpr qint32 SoftwareChunkFailed = 1031;
constexpr qint32 SubjectNameChunkFailed = 1032;
constexpr qint32 SubjectDateChunkFailed = 1033;
constexpr qint32 SubjectDateTextFailed = 1034;
constexpr qint32 FlushFailed = 1035;
constexpr qint32 DeviceBusy = 1050;
constexpr qint32 NoAudioDriver = 1051;
constexpr qint32 OutOfMemory = 1052;
constexpr qint32 BadFormat = 1053;
// An internet stream that could not be reached at any time of the recording; the error's
// payload names the address and the reason.
constexpr qint32 StreamUnreachable = 1060;

// The file could not be written on during capture (a full disk, a drive gone): the task has
// closed what it wrote, which is a recording up to that moment.
constexpr bool IsWriteError(qint32 code)
{
    return code == WriteFailed || code == FlushFailed;
}
} // namespace TaskError
