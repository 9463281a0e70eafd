-- The empty database of Nightreel 2000. Values are stored as the original files held them:
-- dates as automation dates (days since 30 December 1899), Booleans as -1 and 0.
CREATE TABLE Programs (
    ID INTEGER PRIMARY KEY,
    Enabled INTEGER,
    Description TEXT,
    DescriptionText TEXT,
    CompressionMethod TEXT,
    StartTime REAL,
    EndTime REAL,
    Frequency INTEGER,
    FrequencyText TEXT,
    OneTimeDay REAL,
    Sun INTEGER,
    Mon INTEGER,
    Tue INTEGER,
    Wed INTEGER,
    Thu INTEGER,
    Fri INTEGER,
    Sat INTEGER,
    wfx_wFormatTag INTEGER,
    wfx_nChannels INTEGER,
    wfx_nSamplesPerSec INTEGER,
    wfx_nAvgBytesPerSec INTEGER,
    wfx_nBlockAlign INTEGER,
    wfx_nBitsPerSample INTEGER,
    wfx_cbSize INTEGER,
    wfxExtra BLOB,
    RecordingCancelled INTEGER,
    RecordingCancelledEndDateAndTime REAL,
    Flags INTEGER,
    FilenamePrefix TEXT,
    FilenameSuffix TEXT,
    FilenameUser TEXT,
    InternetLink TEXT,
    InternetLinkDelay INTEGER,
    LaunchAppPrior TEXT,
    LaunchAppDelay INTEGER,
    LaunchAppAfter TEXT,
    MixerProfileBefore TEXT,
    MixerProfileAfter TEXT,
    StreamingPlayerClose TEXT,
    HangupInternetConnection INTEGER,
    LaunchAfterOnlyIfOk INTEGER,
    StreamUrl TEXT,
    InputName TEXT
);

CREATE TABLE Recordings (
    ID INTEGER PRIMARY KEY,
    Title TEXT,
    File TEXT,
    StartTime REAL,
    EndTime REAL,
    CompressionMethod TEXT,
    Size REAL
);

CREATE TABLE EventLog (
    ID INTEGER PRIMARY KEY,
    Type INTEGER,
    DateAndTime REAL,
    Message TEXT,
    Details TEXT
);

CREATE TABLE Info (
    VersionMajor INTEGER,
    VersionMinor INTEGER,
    VersionRev INTEGER,
    wfxdflt_wFormatTag INTEGER,
    wfxdflt_nChannels INTEGER,
    wfxdflt_nSamplesPerSec INTEGER,
    wfxdflt_nAvgBytesPerSec INTEGER,
    wfxdflt_nBlockAlign INTEGER,
    wfxdflt_nBitsPerSample INTEGER,
    wfxdflt_cbSize INTEGER,
    wfxdfltExtra BLOB
);

-- PCM, 11025 Hz, 8 bits, mono: the format a new or damaged Info row falls back to.
-- The extra bytes are stored as cbSize + 1 bytes, so cbSize 0 is one zero byte.
INSERT INTO Info VALUES (1, 0, 0, 1, 1, 11025, 11025, 1, 8, 0, X'00');
