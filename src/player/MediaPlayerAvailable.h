#pragma once

// True when the enhanced player can run: the media framework starts and every element its
// engine builds on is installed (the player, the filters of rate, balance and volume, the
// WAV reader, an MP3 decoder and an audio output). Asked once per run; later calls give the
// first answer.
bool MediaPlayerAvailable();
