--top N=6 d
--


-- (legal notice)



--synthesis_resources = ram_block 1 tap_cell 2 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 GENERIC 
	 (
		N	:	NATURAL := 6
	 );
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 f	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (7 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_u_ram_q	:	STD_LOGIC_VECTOR (7 DOWNTO 0);
	 SIGNAL  wire_taps_a	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_taps_o	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_w_d_range1w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 COMPONENT  ram_block
	 GENERIC 
	 (
		BITS	:	STD_LOGIC_VECTOR(4 DOWNTO 0) := "00000";
		DEPTH	:	NATURAL;
		HINTED	:	NATURAL;
		INIT	:	STD_LOGIC_VECTOR(11 DOWNTO 0) := "000000000000";
		NWORDS	:	NATURAL;
		SPEED	:	STRING := "";
		UNSET	:	STRING := "";
		WIDTH	:	STRING := "-1";
		LATENCY	:	NATURAL := 2;
		SIM_FILE	:	STRING := "init.hex";
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		addr	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		ce	:	IN STD_LOGIC := '1';
		mask	:	IN STD_LOGIC_VECTOR(1 DOWNTO 0) := (OTHERS => '0');
		mode	:	IN STD_LOGIC := 'Z';
		parity	:	OUT STD_LOGIC;
		q	:	OUT STD_LOGIC_VECTOR(2*DEPTH-1 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  tap_cell
	 GENERIC 
	 (
		Kind	:	STRING := "";
		lpm_hint	:	STRING := "UNUSED"
	 );
	 PORT
	 ( 
		a	:	IN STD_LOGIC;
		en	:	IN STD_LOGIC := '1';
		o	:	OUT STD_LOGIC
	 ); 	 END COMPONENT;
 BEGIN

	f <= wire_taps_o;
	q <= wire_u_ram_q;
	wire_w_d_range1w <= d(1 DOWNTO 0);
	u_ram :  ram_block
	  GENERIC MAP (
		BITS => "00101",
		DEPTH => 4,
		INIT => "000001011010",
		NWORDS => (N * 2),
		SPEED => "Fast",
		WIDTH => "8",
		LATENCY => 2,
		SIM_FILE => "init.hex",
		lpm_hint => "HINTED=3, A=1"
	  )
	  PORT MAP ( 
		addr => d,
		q => wire_u_ram_q
	  );
	wire_taps_a <= d(1 DOWNTO 0);
	loop0 : FOR i IN 0 TO 1 GENERATE 
	  taps :  tap_cell
	  GENERIC MAP (
		Kind => "SLOW"
	  )
	  PORT MAP ( 
		a => wire_taps_a(i),
		o => wire_taps_o(i)
	  );
	END GENERATE loop0;

 END RTL; --top
--VALID FILE
