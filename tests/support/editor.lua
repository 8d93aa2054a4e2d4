-- Run by Neovim: works with the language server as a person at the editor does, and writes what comes to a file.
-- In the environment: WEXHOST, the command; RESULT, the file to write.
local lines = {
  "; Größe 😀",
  "(defun start ()",
  '  (wex_new_dialog "ADD_REC")',
  '  (princ "😀") (wex_set_tile "DECS" "x")',
  '  (wex_action_tile "OK" "(wex_done_dialg \\"1\\")")',
  "  (wex_start_dialog))",
  "(start)",
}
local told = {}
local function tell(...) table.insert(told, table.concat({ ... }, " ")) end

local function body()
  vim.cmd("edit " .. vim.fn.fnameescape(os.getenv("RESULT") .. " form.lsp"))
  local buffer = vim.api.nvim_get_current_buf()
  vim.api.nvim_buf_set_lines(buffer, 0, -1, false, lines)
  local id = vim.lsp.start_client({ name = "wexhost", cmd = vim.split(os.getenv("WEXHOST"), " ") })
  vim.lsp.buf_attach_client(buffer, id)
  local function wait(count)
    local function warnings() return vim.diagnostic.get(buffer, { severity = vim.diagnostic.severity.WARN }) end
    if not vim.wait(60000, function() return #warnings() == count end, 20) then tell("no", count, "warnings came") end
    for _, found in ipairs(warnings()) do
      local line = vim.api.nvim_buf_get_lines(buffer, found.lnum, found.lnum + 1, false)[1]
      tell(found.lnum + 1 .. ":", line:sub(found.col + 1, found.end_col), "=>", found.message)
    end
  end
  wait(2)
  -- A letter is taken out, and others are put in: only the change is sent.
  local at = lines[4]:find("DECS", 1, true) - 1
  vim.api.nvim_buf_set_text(buffer, 3, at + 1, 3, at + 4, { "ESC" })
  wait(1)

  local client = vim.lsp.get_client_by_id(id)
  local function ask(method, row, column)
    vim.api.nvim_win_set_cursor(0, { row, column })
    return client.request_sync("textDocument/" .. method, vim.lsp.util.make_position_params(0, client.offset_encoding), 60000, buffer).result
  end
  local function labels(result, wanted)
    local found = {}
    for _, item in ipairs(result.items) do
      if item.label:find(wanted) then table.insert(found, item.label .. " (" .. item.detail .. ")") end
    end
    return table.concat(found, ", ")
  end
  tell("keys:", labels(ask("completion", 4, at), "^[CQ]"))
  tell("dialogs:", labels(ask("completion", 3, 19), "^ADD_"))
  tell("functions:", labels(ask("completion", 6, 9), "^wex_start"))
  tell("hover:", (ask("hover", 4, lines[4]:find("wex_set", 1, true)).contents.value:gsub("\n.*", "")))
  vim.lsp.stop_client(id)
  if not vim.wait(60000, function() return client.is_stopped() end, 20) then tell("the server didn't end") end
end

local isDone, fault = pcall(body)
if not isDone then tell("FAILED:", tostring(fault)) end
vim.fn.writefile(told, os.getenv("RESULT"))
vim.cmd("qall!")
