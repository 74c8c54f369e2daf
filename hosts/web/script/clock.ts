/// The local date and time as the core takes it: year, month, day, hour, minute, second.
export function localMoment(): string[] {
  const now = new Date();
  return [
    now.getFullYear(), now.getMonth() + 1, now.getDate(), now.getHours(), now.getMinutes(), now.getSeconds(),
  ].map(String);
}
