-- The Lisp's rows in another interpreter, as a measure of what this machine gives.
local function row(key, work)
  local times = {}
  for i = 1, 15 do
    local begun = os.clock()
    work()
    times[i] = (os.clock() - begun) * 1000
  end
  table.sort(times)
  print(string.format("%s  min %.4f  med %.4f ms  n=%d", key, times[1], times[8], #times))
end

local function fib(n) if n < 2 then return n end return fib(n - 1) + fib(n - 2) end
local native = rawlen
local text = ""

row("lua.fib27", function() fib(27) end)
row("lua.million_native_calls", function() for _ = 1, 1000000 do native(text) end end)
row("lua.million_actions_prepared", function()
  local action = load("done = true")
  for _ = 1, 1000000 do action() end
end)
