/// The lines of a stream without their ends, one at a time. The last may have no end.
export class LineReader {
  private readonly lines: Buffer[] = [];
  private unfinished: Buffer[] = [];
  private ended = false;
  private wake: (() => void) | undefined;

  constructor(stream: NodeJS.ReadableStream) {
    stream.on("data", (part: Buffer) => this.take(part));
    stream.on("end", () => {
      if (this.unfinished.length > 0) this.finishLine();
      this.ended = true;
      this.wake?.();
    });
  }

  /// Nothing at the stream's end.
  async next(): Promise<Buffer | undefined> {
    while (this.lines.length === 0 && !this.ended) {
      await new Promise<void>((resolve) => (this.wake = resolve));
    }
    return this.lines.shift();
  }

  private take(part: Buffer): void {
    const newline = "\n".charCodeAt(0);
    let at = 0;
    for (let end = part.indexOf(newline); end >= 0; end = part.indexOf(newline, at)) {
      this.unfinished.push(part.subarray(at, end));
      this.finishLine();
      at = end + 1;
    }
    if (at < part.length) this.unfinished.push(part.subarray(at));
    if (this.lines.length > 0) this.wake?.();
  }

  private finishLine(): void {
    this.lines.push(Buffer.concat(this.unfinished));
    this.unfinished = [];
  }
}
