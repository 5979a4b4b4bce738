// SPDX-License-Identifier: MIT
#pragma once

/// How the program deals with the system's memory. Pictures, tiles and textures come and go in blocks of many
/// megabytes; fresh memory for such a block costs more time than what is done with it.
namespace memory
{

/// Keeps freed blocks for the next ones instead of giving each back at once. For the whole process, at its start.
void keepFreedBlocks();

/// Gives all that is free back to the system: when a job is over.
void returnFreedBlocks();

} // namespace memory
