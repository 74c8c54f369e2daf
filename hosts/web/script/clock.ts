/// Seconds of local time since 1970 began.
export function localSeconds(): number {
  const now = new Date();
  return Math.floor(now.getTime() / 1000) - now.getTimezoneOffset() * 60;
}
